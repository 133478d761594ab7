#include "Gui/MainWindow.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Files/SceneFile.h"
#include "Gui/AboutDialog.h"
#include "Gui/ExportDialog.h"
#include "Gui/HelpWidget.h"
#include "Gui/PropertyEditorWidget.h"
#include "Gui/QuickLoadWidget.h"
#include "Gui/ScenePropertiesWidget.h"
#include "Gui/SettingsWidget.h"
#include "Gui/SnapWidget.h"
#include "Gui/SocialDialog.h"
#include "Physics/PhysicsItem.h"
#include "Physics/PhysicsWorld.h"
#include "Scripting/ConsoleWidget.h"
#include "Tools/ActionContextToolBar.h"
#include "Tools/BalloonAction.h"
#include "Tools/BrushAction.h"
#include "Tools/CameraAction.h"
#include "Tools/ChainAction.h"
#include "Tools/CircleAction.h"
#include "Tools/DifferenceAction.h"
#include "Tools/DistanceJointAction.h"
#include "Tools/EraseAction.h"
#include "Tools/ExplodeAction.h"
#include "Tools/GearAction.h"
#include "Tools/GraphicsViewAction.h"
#include "Tools/GunAction.h"
#include "Tools/ImageAction.h"
#include "Tools/IntersectionAction.h"
#include "Tools/PlayPauseAction.h"
#include "Tools/PlotAction.h"
#include "Tools/PolygonAction.h"
#include "Tools/PrismaticJointAction.h"
#include "Tools/PulleyJointAction.h"
#include "Tools/RectangleAction.h"
#include "Tools/RemoveAction.h"
#include "Tools/RevoluteJointAction.h"
#include "Tools/RopeAction.h"
#include "Tools/SelectAction.h"
#include "Tools/SpringForceAction.h"
#include "Tools/TextAction.h"
#include "Tools/UnionAction.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"
#include "View/StatusBar.h"
#include "Web/DownloadDialog.h"
#include "Web/UploadDialog.h"

#include <QActionGroup>
#include <QApplication>
#include <QChildEvent>
#include <QCloseEvent>
#include <QDesktopWidget>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QTabBar>
#include <QToolBar>
#include <QUndoStack>
#include <QUndoView>

namespace {
const int fileMessageTimeout = 3000; // milliseconds

QIcon resourceIcon(const char* name)
{
    return QIcon(QStringLiteral(":/icons/%1.png").arg(QLatin1String(name)));
}

QString sceneFilter()
{
    return QStringLiteral("*.%1").arg(SceneFile::extension);
}

template<typename Bar> void setAllVisible(QMainWindow* window, bool visible)
{
    for (Bar* bar : window->findChildren<Bar*>())
        bar->setVisible(visible);
}
} // namespace

struct MainWindow::ActionRow
{
    ActionId id;
    const char* text;
    const char* statusTip;
    const char* icon; // under :/icons/, null for none
    QKeySequence::StandardKey standardKey;
    int key; // a combination where no standard key fits, 0 for none
    QAction* (MainWindow::*make)(const ActionRow& row);
    // The work of a command; null while it does not exist yet, which disables the action.
    void (MainWindow::*slot)();
};

struct MainWindow::ToolBarRow
{
    const char* objectName;
    const char* title;
    ActionIds contents;
};

struct MainWindow::DockRow
{
    enum Start { Hidden, HiddenFloating, Shown, ShownOnWideDesktop };

    const char* objectName;
    const char* title;
    QWidget* (*content)(MainWindow* window);
    Qt::DockWidgetAreas allowedAreas;
    Qt::DockWidgetArea area;
    int toggleKey;
    Start start;
};

struct MainWindow::MenuRow
{
    QMenu* MainWindow::*menu;
    const char* title;
    const char* icon; // under :/icons/, null for none
};

const std::array<MainWindow::ActionRow, std::size_t(MainWindow::ActionId::Count)>&
MainWindow::actionRows()
{
    using Id = ActionId;
    using Key = QKeySequence;
    const Key::StandardKey none = Key::UnknownKey;
    static const std::array<ActionRow, std::size_t(Id::Count)> rows = {{
        {Id::New, QT_TR_NOOP("New Scene"), QT_TR_NOOP("Creates a new scene"), "new", Key::New, 0,
         &MainWindow::makeCommand, &MainWindow::onNew},
        {Id::Save, QT_TR_NOOP("Save Scene"), QT_TR_NOOP("Saves current scene"), "save", Key::Save,
         0, &MainWindow::makeCommand, &MainWindow::onSave},
        {Id::SaveAs, QT_TR_NOOP("Save Scene As..."), QT_TR_NOOP("Saves current scene as"), "saveAs",
         Key::SaveAs, 0, &MainWindow::makeCommand, &MainWindow::onSaveAs},
        {Id::Load, QT_TR_NOOP("Load Scene..."), QT_TR_NOOP("Loads a scene"), "load", Key::Open, 0,
         &MainWindow::makeCommand, &MainWindow::onLoad},
        {Id::Upload, QT_TR_NOOP("Upload Scene..."), QT_TR_NOOP("Uploads current scene to %1"),
         "upload", none, 0, &MainWindow::makeCommand, &MainWindow::onUpload},
        {Id::Download, QT_TR_NOOP("Download Scenes..."), QT_TR_NOOP("Downloads scenes from %1"),
         "download", none, 0, &MainWindow::makeCommand, &MainWindow::onDownload},
        {Id::Export, QT_TR_NOOP("Export..."), QT_TR_NOOP("Exports current scene as an image"),
         "export", none, 0, &MainWindow::makeCommand, &MainWindow::onExport},
        {Id::EvaluateScript, QT_TR_NOOP("Evaluate Script..."),
         QT_TR_NOOP("Evaluates a .script file"), "script", none, 0, &MainWindow::makeCommand,
         &MainWindow::onEvaluateScript},
        {Id::Quit, QT_TR_NOOP("Quit"), QT_TR_NOOP("Quits the application"), "shutdown", Key::Quit,
         0, &MainWindow::makeCommand, &MainWindow::onQuit},
        {Id::Undo, QT_TR_NOOP("Undo"), QT_TR_NOOP("Undo"), "undo", Key::Undo, 0,
         &MainWindow::makeUndo, nullptr},
        {Id::Redo, QT_TR_NOOP("Redo"), QT_TR_NOOP("Redo"), "redo", Key::Redo, 0,
         &MainWindow::makeRedo, nullptr},
        {Id::SelectAll, QT_TR_NOOP("Select All"), QT_TR_NOOP("Selects all items of the scene"),
         "selectAll", Key::SelectAll, 0, &MainWindow::makeCommand, &MainWindow::onSelectAll},
        // Escape stops a script as well; as the action's key it would take Escape from the tools.
        {Id::StopScript, QT_TR_NOOP("Stop Script"),
         QT_TR_NOOP("Stops the script that is running (Escape)"), "stopScript", none, 0,
         &MainWindow::makeCommand, &MainWindow::onStopScript},
        {Id::ZoomIn, QT_TR_NOOP("Zoom In"), QT_TR_NOOP("Zooms in"), "zoomIn", Key::ZoomIn, 0,
         &MainWindow::makeCommand, &MainWindow::onZoomIn},
        {Id::ZoomOut, QT_TR_NOOP("Zoom Out"), QT_TR_NOOP("Zooms out"), "zoomOut", Key::ZoomOut, 0,
         &MainWindow::makeCommand, &MainWindow::onZoomOut},
        {Id::ZoomExtents, QT_TR_NOOP("Zoom Extents"),
         QT_TR_NOOP("Zooms in or out to fit the extents of the scene"), nullptr, none,
         Qt::CTRL | Qt::Key_0, &MainWindow::makeCommand, &MainWindow::onZoomExtents},
        {Id::ShowAllToolbars, QT_TR_NOOP("Show all"), QT_TR_NOOP("Shows all toolbars"), nullptr,
         none, 0, &MainWindow::makeCommand, &MainWindow::onShowAllToolbars},
        {Id::HideAllToolbars, QT_TR_NOOP("Hide all"), QT_TR_NOOP("Hides all toolbars"), nullptr,
         none, 0, &MainWindow::makeCommand, &MainWindow::onHideAllToolbars},
        {Id::ShowAllDockWidgets, QT_TR_NOOP("Show all"), QT_TR_NOOP("Shows all dock widgets"),
         nullptr, none, 0, &MainWindow::makeCommand, &MainWindow::onShowAllDockWidgets},
        {Id::HideAllDockWidgets, QT_TR_NOOP("Hide all"), QT_TR_NOOP("Hides all dock widgets"),
         nullptr, none, 0, &MainWindow::makeCommand, &MainWindow::onHideAllDockWidgets},
        {Id::Fullscreen, QT_TR_NOOP("Fullscreen"), QT_TR_NOOP("Toggles fullscreen mode"),
         "fullscreen", none, Qt::Key_F11, &MainWindow::makeFullscreenToggle, nullptr},
        {Id::Help, QT_TR_NOOP("Help"), QT_TR_NOOP("Shows the application's help file"), "help",
         Key::HelpContents, 0, &MainWindow::makeCommand, &MainWindow::onHelp},
        {Id::About, QT_TR_NOOP("About..."), QT_TR_NOOP("Shows the application's About box"), "info",
         none, 0, &MainWindow::makeCommand, &MainWindow::onAbout},
        {Id::AboutQt, QT_TR_NOOP("About Qt..."), QT_TR_NOOP("Shows the Qt library's About box"),
         "qtLogo", none, 0, &MainWindow::makeCommand, &MainWindow::onAboutQt},
        {Id::PlayPause, QT_TR_NOOP("Play/Pause"), QT_TR_NOOP("Starts/Pauses the simulation"),
         "play", none, Qt::Key_Space, &MainWindow::makePlayPause, nullptr},
        // The tools. A tool whose class exists is made with makeTool<ItsClass>.
        {Id::Select, QT_TR_NOOP("Select/Move"), QT_TR_NOOP("Selects and/or moves an item"),
         "mousePointer", none, 0, &MainWindow::makeTool<SelectAction>, nullptr},
        {Id::Remove, QT_TR_NOOP("Remove"),
         QT_TR_NOOP("Removes an item or a selection of items from the scene"), "remove", none, 0,
         &MainWindow::makeTool<RemoveAction>, nullptr},
        {Id::Explode, QT_TR_NOOP("Explode Item"), QT_TR_NOOP("Explodes an item"), "bomb", none, 0,
         &MainWindow::makeTool<ExplodeAction>, nullptr},
        {Id::Erase, QT_TR_NOOP("Erase Item"), QT_TR_NOOP("Erases parts of an item"), "eraser", none,
         0, &MainWindow::makeTool<EraseAction>, nullptr},
        {Id::Camera, QT_TR_NOOP("Create Camera"),
         QT_TR_NOOP("Creates a camera that follows an item"), "camera", none, 0,
         &MainWindow::makeTool<CameraAction>, nullptr},
        // Stays disabled for good, also once its class exists.
        {Id::Tracer, QT_TR_NOOP("Create Tracer"),
         QT_TR_NOOP("Creates a tracer that follows an item"), "tracer", none, 0,
         &MainWindow::makeUnavailableTool, nullptr},
        {Id::Gun, QT_TR_NOOP("Shoot Item"), QT_TR_NOOP("Shoots an item"), "gun", none, 0,
         &MainWindow::makeTool<GunAction>, nullptr},
        {Id::Plot, QT_TR_NOOP("Create Plot"), QT_TR_NOOP("Creates a plot for a given item"),
         "graph", none, 0, &MainWindow::makeTool<PlotAction>, nullptr},
        {Id::Rectangle, QT_TR_NOOP("Create Rectangle"), QT_TR_NOOP("Creates a rectangle"),
         "rectangle", none, 0, &MainWindow::makeTool<RectangleAction>, nullptr},
        {Id::Circle, QT_TR_NOOP("Create Circle"), QT_TR_NOOP("Creates a circle"), "circle", none, 0,
         &MainWindow::makeTool<CircleAction>, nullptr},
        {Id::Polygon, QT_TR_NOOP("Create Polygon"), QT_TR_NOOP("Creates a polygon"), "polygon",
         none, 0, &MainWindow::makeTool<PolygonAction>, nullptr},
        {Id::Balloon, QT_TR_NOOP("Create Balloon"), QT_TR_NOOP("Creates a balloon"), "balloon",
         none, 0, &MainWindow::makeTool<BalloonAction>, nullptr},
        {Id::Brush, QT_TR_NOOP("Create freehand shape"),
         QT_TR_NOOP("Freehand drawing of random shapes"), "brush", none, 0,
         &MainWindow::makeTool<BrushAction>, nullptr},
        {Id::Chain, QT_TR_NOOP("Create Chain"), QT_TR_NOOP("Creates a chain"), "chain", none, 0,
         &MainWindow::makeTool<ChainAction>, nullptr},
        {Id::Rope, QT_TR_NOOP("Create Rope"), QT_TR_NOOP("Creates a rope"), "rope", none, 0,
         &MainWindow::makeTool<RopeAction>, nullptr},
        {Id::Text, QT_TR_NOOP("Create Text"), QT_TR_NOOP("Creates items from text"), "text", none,
         0, &MainWindow::makeTool<TextAction>, nullptr},
        {Id::Gear, QT_TR_NOOP("Create Gear"), QT_TR_NOOP("Creates a gear"), "gear", none, 0,
         &MainWindow::makeTool<GearAction>, nullptr},
        {Id::Image, QT_TR_NOOP("Create Image"),
         QT_TR_NOOP("Creates a shape based on the outline of a (png) image"), "image", none, 0,
         &MainWindow::makeTool<ImageAction>, nullptr},
        {Id::DistanceJoint, QT_TR_NOOP("Create Distance Joint"),
         QT_TR_NOOP("Creates a distance joint between two items (or an item and the background)"),
         "D", none, 0, &MainWindow::makeTool<DistanceJointAction>, nullptr},
        {Id::RevoluteJoint, QT_TR_NOOP("Create Revolute Joint"),
         QT_TR_NOOP("Creates a revolute joint between two items (or an item and the background)"),
         "R", none, 0, &MainWindow::makeTool<RevoluteJointAction>, nullptr},
        {Id::PrismaticJoint, QT_TR_NOOP("Create Prismatic Joint"),
         QT_TR_NOOP("Creates a prismatic joint between two items"), "Pr", none, 0,
         &MainWindow::makeTool<PrismaticJointAction>, nullptr},
        {Id::PulleyJoint, QT_TR_NOOP("Create Pulley Joint"),
         QT_TR_NOOP("Creates a pulley joint between two items"), "Pu", none, 0,
         &MainWindow::makeTool<PulleyJointAction>, nullptr},
        {Id::SpringForce, QT_TR_NOOP("Create Spring"),
         QT_TR_NOOP("Creates a spring between two items"), "spring", none, 0,
         &MainWindow::makeTool<SpringForceAction>, nullptr},
        {Id::Union, QT_TR_NOOP("Union"),
         QT_TR_NOOP("Creates an item from the union of two other items"), "union", none, 0,
         &MainWindow::makeTool<UnionAction>, nullptr},
        {Id::Difference, QT_TR_NOOP("Difference"),
         QT_TR_NOOP("Creates an item from the difference of two other items"), "difference", none,
         0, &MainWindow::makeTool<DifferenceAction>, nullptr},
        {Id::Intersection, QT_TR_NOOP("Intersection"),
         QT_TR_NOOP("Creates an item from the intersection of two other items"), "intersection",
         none, 0, &MainWindow::makeTool<IntersectionAction>, nullptr},
    }};
    return rows;
}

const QVector<MainWindow::ToolBarRow>& MainWindow::toolBarRows()
{
    using Id = ActionId;
    static const QVector<ToolBarRow> rows = {
        {"GeneralToolbar",
         QT_TR_NOOP("General Toolbar"),
         {Id::Undo, Id::Redo, Id::PlayPause, Id::Separator, Id::Select, Id::Remove, Id::Separator,
          Id::Explode, Id::Erase, Id::Camera, Id::Tracer, Id::Gun, Id::Plot}},
        {"BodiesToolbar",
         QT_TR_NOOP("Bodies Toolbar"),
         {Id::Rectangle, Id::Circle, Id::Polygon, Id::Balloon, Id::Brush, Id::Chain, Id::Rope,
          Id::Text, Id::Gear, Id::Image}},
        {"JointsToolbar",
         QT_TR_NOOP("Joints Toolbar"),
         {Id::DistanceJoint, Id::RevoluteJoint, Id::PrismaticJoint, Id::PulleyJoint}},
        {"ForcesToolbar", QT_TR_NOOP("Forces Toolbar"), {Id::SpringForce}},
        {"BooleanToolbar",
         QT_TR_NOOP("Boolean Toolbar"),
         {Id::Union, Id::Difference, Id::Intersection}},
        // Holds the snap widget alone.
        {"SnapToolbar", QT_TR_NOOP("Snap Toolbar"), {}},
    };
    return rows;
}

const QVector<MainWindow::DockRow>& MainWindow::dockRows()
{
    const Qt::DockWidgetAreas sides = Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea;
    static const QVector<DockRow> rows = {
        {"SettingsDockWidget", QT_TR_NOOP("Settings"),
         [](MainWindow* window) -> QWidget* { return new SettingsWidget(window->view); }, sides,
         Qt::LeftDockWidgetArea, Qt::ALT | Qt::Key_S, DockRow::HiddenFloating},
        {"ConsoleDockWidget", QT_TR_NOOP("Console"),
         [](MainWindow* window) -> QWidget* {
             window->consoleWidget = new ConsoleWidget();
             window->consoleWidget->setStopAction(window->action(ActionId::StopScript));
             return window->consoleWidget;
         },
         Qt::AllDockWidgetAreas, Qt::BottomDockWidgetArea, Qt::Key_AsciiTilde, DockRow::Hidden},
        {"ScenePropertiesDockWidget", QT_TR_NOOP("Scene Properties"),
         [](MainWindow* window) -> QWidget* {
             return new ScenePropertiesWidget(PhysicsWorld::instance(), window->view);
         },
         sides, Qt::LeftDockWidgetArea, Qt::SHIFT | Qt::Key_S, DockRow::Hidden},
        {"PropertyEditorDockWidget", QT_TR_NOOP("Property Editor"),
         [](MainWindow* window) -> QWidget* {
             return window->propertyEditor = new PropertyEditorWidget();
         },
         sides, Qt::RightDockWidgetArea, Qt::SHIFT | Qt::Key_P, DockRow::ShownOnWideDesktop},
        {"QuickLoadDockWidget", QT_TR_NOOP("Quick Load"),
         [](MainWindow* window) -> QWidget* {
             return window->quickLoad
                 = new QuickLoadWidget(Settings::instance()->quickLoadDirectory);
         },
         sides, Qt::LeftDockWidgetArea, Qt::SHIFT | Qt::Key_Q, DockRow::Shown},
        {"UndoViewDockWidget", QT_TR_NOOP("Commands History"),
         [](MainWindow*) -> QWidget* { return new QUndoView(Application::instance()->undoStack); },
         Qt::AllDockWidgetAreas, Qt::RightDockWidgetArea, Qt::SHIFT | Qt::Key_C, DockRow::Hidden},
    };
    return rows;
}

const QVector<MainWindow::MenuRow>& MainWindow::menuRows()
{
    static const QVector<MenuRow> rows = {
        {&MainWindow::fileMenu, QT_TR_NOOP("&File"), nullptr},
        {&MainWindow::editMenu, QT_TR_NOOP("&Edit"), nullptr},
        {&MainWindow::viewMenu, QT_TR_NOOP("&View"), nullptr},
        {&MainWindow::zoomMenu, QT_TR_NOOP("Zoom"), "zoom"},
        {&MainWindow::toolBarsMenu, QT_TR_NOOP("Toolbars"), nullptr},
        {&MainWindow::dockWidgetsMenu, QT_TR_NOOP("Dock Widgets"), nullptr},
        {&MainWindow::perspectivesMenu, QT_TR_NOOP("Perspectives"), "perspective"},
        {&MainWindow::helpMenu, QT_TR_NOOP("&Help"), nullptr},
    };
    return rows;
}

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , view(new GraphicsView(this))
    , toolGroup(new QActionGroup(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setCentralWidget(view);
    createActions();
    createMenus();
    createToolBars();
    statusLine = new StatusBar(this);
    setStatusBar(statusLine);
    statusLine->showMessage(tr("Ready"));
    createDockWidgets();
    fillMenus();
    retranslate();
    setWindowTitle(QCoreApplication::applicationName());

    connect(PhysicsWorld::instance()->graphicsScene(), &GraphicsScene::selectionChanged, this,
            &MainWindow::onSceneSelectionChanged);
    const Application* application = Application::instance();
    connect(application, &Application::fileCreated, this, &MainWindow::onFileCreated);
    connect(application, &Application::fileSaved, this, &MainWindow::onFileSaved);
    connect(application, &Application::fileLoaded, this, &MainWindow::onFileLoaded);
}

void MainWindow::createActions()
{
    for (const ActionRow& row : actionRows()) {
        QAction* created = (this->*row.make)(row);
        if (row.icon)
            created->setIcon(resourceIcon(row.icon));
        if (row.standardKey != QKeySequence::UnknownKey)
            created->setShortcuts(row.standardKey);
        else if (row.key)
            created->setShortcut(QKeySequence(row.key));
        actions[std::size_t(row.id)] = created;
    }
    action(ActionId::Select)->setChecked(true);
    // Enabled while a script runs long enough to be stopped.
    action(ActionId::StopScript)->setEnabled(false);
    view->currentAction = qobject_cast<GraphicsViewAction*>(action(ActionId::Select));
    createPerspectiveActions();
}

void MainWindow::createPerspectiveActions()
{
    QSettings perspectives(QStringLiteral(":/text/db.ini"), QSettings::IniFormat);
    perspectives.beginGroup(QStringLiteral("PERSPECTIVES"));
    // Keys come back sorted, which gives the order of the menu and of the shortcuts.
    for (const QString& name : perspectives.allKeys()) {
        auto* perspective = new Action(resourceIcon("perspective"), name, this);
        perspective->setData(perspectives.value(name).toByteArray());
        perspective->setShortcut(QKeySequence(Qt::ALT | (Qt::Key_1 + perspectiveActions.size())));
        connect(perspective, &QAction::triggered, this, &MainWindow::onPerspectiveSelected);
        perspectiveActions.append(perspective);
    }
}

QAction* MainWindow::makeCommand(const ActionRow& row)
{
    auto* command = new Action(QIcon(), QString(), this);
    if (row.slot)
        connect(command, &QAction::triggered, this, row.slot);
    else
        command->setEnabled(false);
    return command;
}

QAction* MainWindow::makeFullscreenToggle(const ActionRow&)
{
    auto* toggle = new Action(QIcon(), QString(), this);
    toggle->setCheckable(true);
    connect(toggle, &QAction::toggled, this, &MainWindow::onFullScreen);
    return toggle;
}

QAction* MainWindow::makeUndo(const ActionRow&)
{
    return Application::instance()->undoStack->createUndoAction(this, QString());
}

QAction* MainWindow::makeRedo(const ActionRow&)
{
    return Application::instance()->undoStack->createRedoAction(this, QString());
}

QAction* MainWindow::makePlayPause(const ActionRow&)
{
    // The action itself follows the world's started and stopped signals with its icon.
    return new PlayPauseAction(this);
}

template<typename Tool> QAction* MainWindow::makeTool(const ActionRow&)
{
    return addTool(new Tool(this, view));
}

QAction* MainWindow::makeUnavailableTool(const ActionRow&)
{
    QAction* tool = addTool(new GraphicsViewAction(QIcon(), QString(), this, view));
    tool->setEnabled(false);
    return tool;
}

QAction* MainWindow::addTool(GraphicsViewAction* tool)
{
    tool->setCheckable(true);
    toolGroup->addAction(tool);
    connect(tool, &QAction::triggered, this, &MainWindow::onGraphicsViewActionTriggered);
    return tool;
}

void MainWindow::createMenus()
{
    for (const MenuRow& row : menuRows()) {
        auto* menu = new QMenu(this);
        if (row.icon)
            menu->setIcon(resourceIcon(row.icon));
        this->*row.menu = menu;
    }
}

void MainWindow::createToolBars()
{
    for (const ToolBarRow& row : toolBarRows()) {
        auto* bar = new QToolBar(this);
        bar->setObjectName(QLatin1String(row.objectName));
        addActionList(bar, row.contents);
        // The snap widget and the strip of the current tool share a line of their own, so
        // that every tool button fits on the first line of a window 1280 pixels wide.
        if (&row == &toolBarRows().last()) {
            bar->addWidget(new SnapWidget(view));
            addToolBarBreak();
        }
        addToolBar(bar);
        toolBars.append(bar);
    }
    contextToolBar = new ActionContextToolBar(QString(), this);
    contextToolBar->setObjectName(QStringLiteral("ActionContextToolbar"));
    addToolBar(contextToolBar);
    toolBars.append(contextToolBar);
}

void MainWindow::createDockWidgets()
{
    // A desktop of exactly this width counts as narrow.
    const bool wideDesktop = QApplication::desktop()->width() > 1024;
    for (const DockRow& row : dockRows()) {
        auto* dock = new QDockWidget(this);
        dock->setObjectName(QLatin1String(row.objectName));
        dock->setWidget(row.content(this));
        dock->setAllowedAreas(row.allowedAreas);
        addDockWidget(row.area, dock);
        dock->toggleViewAction()->setShortcut(QKeySequence(row.toggleKey));
        dock->setFloating(row.start == DockRow::HiddenFloating);
        dock->setVisible(row.start == DockRow::Shown
                         || (row.start == DockRow::ShownOnWideDesktop && wideDesktop));
        dockWidgets.append(dock);
    }
}

void MainWindow::fillMenus()
{
    using Id = ActionId;
    menuBar()->addMenu(fileMenu);
    menuBar()->addMenu(editMenu);
    menuBar()->addMenu(viewMenu);
    menuBar()->addSeparator();
    menuBar()->addMenu(helpMenu);

    addActionList(fileMenu,
                  {Id::New, Id::Separator, Id::Save, Id::SaveAs, Id::Load, Id::Separator,
                   Id::Upload, Id::Download, Id::Separator, Id::Export, Id::Separator,
                   Id::EvaluateScript, Id::Separator, Id::Quit});
    addActionList(editMenu, {Id::Undo, Id::Redo, Id::SelectAll, Id::Separator, Id::StopScript});
    addActionList(zoomMenu, {Id::ZoomIn, Id::ZoomOut, Id::ZoomExtents});
    QList<QAction*> toolBarToggles;
    for (QToolBar* bar : qAsConst(toolBars))
        toolBarToggles.append(bar->toggleViewAction());
    fillVisibilityMenu(toolBarsMenu, toolBarToggles, Id::ShowAllToolbars, Id::HideAllToolbars);
    QList<QAction*> dockToggles;
    for (QDockWidget* dock : qAsConst(dockWidgets))
        dockToggles.append(dock->toggleViewAction());
    fillVisibilityMenu(dockWidgetsMenu, dockToggles, Id::ShowAllDockWidgets,
                       Id::HideAllDockWidgets);
    viewMenu->addMenu(zoomMenu);
    viewMenu->addMenu(toolBarsMenu);
    viewMenu->addMenu(dockWidgetsMenu);
    viewMenu->addMenu(perspectivesMenu);
    perspectivesMenu->addActions(perspectiveActions);
    viewMenu->addSeparator();
    viewMenu->addAction(action(Id::Fullscreen));
    addActionList(helpMenu, {Id::Help, Id::Separator, Id::About, Id::AboutQt});
}

void MainWindow::addActionList(QWidget* widget, const ActionIds& ids)
{
    for (ActionId id : ids) {
        if (id != ActionId::Separator) {
            widget->addAction(action(id));
            continue;
        }
        auto* separator = new QAction(widget);
        separator->setSeparator(true);
        widget->addAction(separator);
    }
}

void MainWindow::fillVisibilityMenu(QMenu* menu, const QList<QAction*>& toggles, ActionId showAll,
                                    ActionId hideAll)
{
    menu->addActions(toggles);
    menu->addSeparator();
    menu->addAction(action(showAll));
    menu->addAction(action(hideAll));
}

void MainWindow::retranslate()
{
    const QString website = websiteUrl().toString();
    for (const ActionRow& row : actionRows()) {
        QAction* translated = action(row.id);
        translated->setText(tr(row.text));
        // The tips of the web commands name the website.
        QString tip = tr(row.statusTip);
        if (tip.contains(QLatin1String("%1")))
            tip = tip.arg(website);
        translated->setStatusTip(tip);
    }
    for (const MenuRow& row : menuRows())
        (this->*row.menu)->setTitle(tr(row.title));
    for (int i = 0; i < toolBarRows().size(); ++i)
        toolBars.at(i)->setWindowTitle(tr(toolBarRows().at(i).title));
    contextToolBar->setWindowTitle(tr("Action Context Toolbar"));
    for (int i = 0; i < dockRows().size(); ++i)
        dockWidgets.at(i)->setWindowTitle(tr(dockRows().at(i).title));
}

void MainWindow::deleteUnknownChildren()
{
    for (QObject* child : qAsConst(trackedChildren)) {
        // The tab bars of tabbed docks belong to the window's own layout, which keeps using
        // them; they are still being built when they arrive, so they are told apart only here.
        if (child->parent() == this && !qobject_cast<QTabBar*>(child))
            child->deleteLater();
    }
    trackedChildren.clear();
}

void MainWindow::childEvent(QChildEvent* event)
{
    QMainWindow::childEvent(event);
    // What the window and the application build during start-up is part of the window.
    const Application* application = Application::instance();
    if (!application || !application->initialised)
        return;
    QObject* child = event->child();
    if (event->type() == QEvent::ChildAdded) {
        if (!trackedChildren.contains(child))
            trackedChildren.append(child);
    } else if (event->type() == QEvent::ChildRemoved) {
        trackedChildren.removeOne(child);
    }
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    QMainWindow::keyPressEvent(event);
    // Escape with the focus outside the view returns to the select tool.
    if (event->key() == Qt::Key_Escape)
        action(ActionId::Select)->activate(QAction::Trigger);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    Settings::instance()->setMainWindowGeometry(saveGeometry());
    Settings::instance()->setMainWindowState(saveState(0));
    // However the request ends, the window closes.
    SocialDialog social(this);
    social.exec();
    QMainWindow::closeEvent(event);
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        // A passing message stays in the language it was given in; it goes instead.
        statusLine->clearMessage();
    } else if (event->type() == QEvent::WindowStateChange)
        action(ActionId::Fullscreen)->setChecked(isFullScreen());
    QMainWindow::changeEvent(event);
}

void MainWindow::onSceneSelectionChanged(PhysicsItem* pSelectedPhysicsItem)
{
    propertyEditor->setObject(pSelectedPhysicsItem);
    propertyEditor->setEnabled(pSelectedPhysicsItem != nullptr);
}

void MainWindow::onGraphicsViewActionTriggered()
{
    auto* tool = qobject_cast<GraphicsViewAction*>(sender());
    if (!tool)
        return;
    if (view->currentAction)
        view->currentAction->cancel();
    view->currentAction = tool;
    contextToolBar->setAction(tool);
}

void MainWindow::onFileCreated()
{
    statusLine->showMessage(tr("New file created"), fileMessageTimeout);
    setWindowTitle(QCoreApplication::applicationName());
}

void MainWindow::onFileSaved(QString filename)
{
    showFileMessage(tr("File saved (%1)"), filename);
}

void MainWindow::onFileLoaded(QString filename)
{
    showFileMessage(tr("File loaded (%1)"), filename);
}

void MainWindow::showFileMessage(const QString& message, const QString& filename)
{
    const QString name = QFileInfo(filename).fileName();
    statusLine->showMessage(message.arg(name), fileMessageTimeout);
    setWindowTitle(tr("%1 - %2").arg(QCoreApplication::applicationName(), name));
}

void MainWindow::onNew()
{
    Application::instance()->newFile(Settings::instance()->createGroundOnStartup);
}

void MainWindow::onSave()
{
    const QString filename = Application::instance()->fileName;
    if (filename.isEmpty())
        onSaveAs();
    else
        Application::instance()->save(filename);
}

void MainWindow::onSaveAs()
{
    QString filename = QFileDialog::getSaveFileName(this, tr("Save"), Application::savesDirectory(),
                                                    sceneFilter());
    if (filename.isEmpty())
        return;
    const QString suffix = QLatin1Char('.') + SceneFile::extension;
    if (!filename.endsWith(suffix))
        filename += suffix;
    Application::instance()->save(filename);
}

void MainWindow::onLoad()
{
    const QString filename = QFileDialog::getOpenFileName(
        this, tr("Load"), Application::savesDirectory(), sceneFilter());
    if (!filename.isEmpty())
        Application::instance()->load(filename);
}

void MainWindow::onUpload()
{
    const QString filename = Application::instance()->fileName;
    if (filename.isEmpty()) {
        QMessageBox::information(this, tr("Upload Scene"),
                                 tr("The scene needs to be saved before uploading.\nPlease save "
                                    "the scene and try again."));
        return;
    }
    UploadDialog dialog(filename, this);
    runPaused(dialog);
}

void MainWindow::onDownload()
{
    DownloadDialog dialog(quickLoad->directory(), this);
    runPaused(dialog);
}

void MainWindow::onExport()
{
    ExportDialog dialog(this);
    runPaused(dialog);
}

void MainWindow::runPaused(QDialog& dialog)
{
    // The world stands still while the dialog is open and goes on as it was after.
    PhysicsWorld* world = PhysicsWorld::instance();
    const bool running = world->running();
    if (running)
        world->stop();
    dialog.exec();
    if (running)
        world->start();
}

void MainWindow::onPerspectiveSelected()
{
    auto* perspective = qobject_cast<QAction*>(sender());
    if (!perspective)
        return;
    restoreState(perspective->data().toByteArray(), 0);
    view->zoomExtents();
}

void MainWindow::onEvaluateScript()
{
    const QString filename = QFileDialog::getOpenFileName(
        this, tr("Load"), Application::dataDirectory(QStringLiteral("scripts")), tr("*.script"));
    if (!filename.isEmpty())
        Application::instance()->evaluateScript(filename);
}

void MainWindow::onQuit()
{
    close();
}

void MainWindow::onSelectAll()
{
    PhysicsWorld::instance()->selectAll();
}

void MainWindow::onStopScript()
{
    Application::instance()->stopScript();
}

void MainWindow::onZoomIn()
{
    view->zoomIn();
}

void MainWindow::onZoomOut()
{
    view->zoomOut();
}

void MainWindow::onZoomExtents()
{
    view->zoomExtents();
}

void MainWindow::onShowAllToolbars()
{
    setAllVisible<QToolBar>(this, true);
}

void MainWindow::onHideAllToolbars()
{
    setAllVisible<QToolBar>(this, false);
}

void MainWindow::onShowAllDockWidgets()
{
    setAllVisible<QDockWidget>(this, true);
}

void MainWindow::onHideAllDockWidgets()
{
    setAllVisible<QDockWidget>(this, false);
}

void MainWindow::onFullScreen(bool fullscreen)
{
    // The checked state follows the window in changeEvent; its echo changes nothing.
    if (isFullScreen() == fullscreen)
        return;
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void MainWindow::onHelp()
{
    auto* help = new HelpWidget(this);
    help->setAttribute(Qt::WA_DeleteOnClose);
    help->setWindowFlags(Qt::Dialog);
    help->show();
}

void MainWindow::onAbout()
{
    // The world goes on behind the box.
    AboutDialog dialog(this);
    dialog.exec();
}

void MainWindow::onAboutQt()
{
    QApplication::aboutQt();
}
