#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/ExportDialog.h"
#include "Gui/MainWindow.h"
#include "Gui/SocialDialog.h"
#include "Physics/PhysicsWorld.h"
#include "Tools/ActionContextToolBar.h"
#include "Tools/ActionContextWidget.h"
#include "Tools/GraphicsViewAction.h"
#include "View/GraphicsView.h"
#include "View/StatusBar.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QDesktopWidget>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QGraphicsItem>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QScriptEngine>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QUndoStack>
#include <QUndoView>
#include <QWidgetAction>

using Id = MainWindow::ActionId;
Q_DECLARE_METATYPE(MainWindow::ActionId)

namespace {
// What a menu or toolbar shows: texts, "-" for a separator, "<Title>" for a submenu.
QStringList entries(const QList<QAction*>& actions)
{
    QStringList list;
    for (QAction* action : actions) {
        if (action->isSeparator())
            list << QStringLiteral("-");
        else if (action->menu())
            list << QStringLiteral("<%1>").arg(action->menu()->title());
        else if (auto* widget = qobject_cast<QWidgetAction*>(action))
            list << QStringLiteral("[%1]").arg(widget->defaultWidget()->metaObject()->className());
        else
            list << action->text();
    }
    return list;
}

QImage iconImage(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage();
}

QImage resourceImage(const QString& name)
{
    return iconImage(QIcon(QStringLiteral(":/icons/%1.png").arg(name)));
}

// A tool that counts the resets that cancel() leads to.
class CountingTool : public GraphicsViewAction
{
public:
    CountingTool(QObject* parent, GraphicsView* view)
        : GraphicsViewAction(QIcon(), QStringLiteral("Counting"), parent, view)
    {
        setCheckable(true);
    }
    void reset() override { ++resets; }
    int resets = 0;
};

// A command that records whether it is done.
class FlagCommand : public QUndoCommand
{
public:
    explicit FlagCommand(bool* done)
        : QUndoCommand(QStringLiteral("Flag"))
        , done(done)
    {
    }
    void redo() override { *done = true; }
    void undo() override { *done = false; }

private:
    bool* done;
};
} // namespace

// The main window as the started program has it: actions, toolbars, docks and menus, tool
// switching, title and status, tracked children and full screen.
class TestMainWindow : public QObject
{
    Q_OBJECT

    Application* application() { return Application::instance(); }
    MainWindow* window() { return application()->mainWindow; }
    GraphicsView* view() { return window()->graphicsView(); }
    PhysicsWorld* world() { return PhysicsWorld::instance(); }
    QAction* action(Id id) { return window()->action(id); }

    // Answers the next file dialog with the file, or cancels it for an empty name, and keeps
    // the dialog's caption in dialogCaption.
    void answerFileDialog(const QString& file)
    {
        dialogCaption.clear();
        QTimer::singleShot(0, this, [this, file] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialogCaption = dialog->windowTitle();
            if (file.isEmpty()) {
                dialog->reject();
                return;
            }
            dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->accept();
        });
    }

    QString dialogCaption;

private slots:
    void initTestCase()
    {
        QVERIFY(window());
        QCOMPARE(window()->statusBar()->currentMessage(), QStringLiteral("Ready"));
        QSignalSpy created(application(), &Application::fileCreated);
        QVERIFY(created.wait(5000));
    }

    void actionTable_data()
    {
        QTest::addColumn<Id>("id");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("statusTip");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QKeySequence>("shortcut");
        QTest::addColumn<bool>("enabled");

        const QString website = websiteUrl().toString();
        const auto row = [](Id id, const char* text, const QString& tip, const char* icon,
                            const QKeySequence& shortcut, bool enabled) {
            QTest::addRow("%d %s", int(id), text) << id << QString::fromUtf8(text) << tip
                                                  << QString::fromUtf8(icon) << shortcut << enabled;
        };
        using Key = QKeySequence;
        row(Id::New, "New Scene", "Creates a new scene", "new", Key::New, true);
        row(Id::Save, "Save Scene", "Saves current scene", "save", Key::Save, true);
        row(Id::SaveAs, "Save Scene As...", "Saves current scene as", "saveAs", Key::SaveAs, true);
        row(Id::Load, "Load Scene...", "Loads a scene", "load", Key::Open, true);
        row(Id::Upload, "Upload Scene...", "Uploads current scene to " + website, "upload", Key(),
            true);
        row(Id::Download, "Download Scenes...", "Downloads scenes from " + website, "download",
            Key(), true);
        row(Id::Export, "Export...", "Exports current scene as an image", "export", Key(), true);
        row(Id::EvaluateScript, "Evaluate Script...", "Evaluates a .script file", "script", Key(),
            true);
        row(Id::Quit, "Quit", "Quits the application", "shutdown", Key::Quit, true);
        row(Id::Undo, "Undo", "Undo", "undo", Key::Undo, false);
        row(Id::Redo, "Redo", "Redo", "redo", Key::Redo, false);
        row(Id::SelectAll, "Select All", "Selects all items of the scene", "selectAll",
            Key::SelectAll, true);
        row(Id::StopScript, "Stop Script", "Stops the script that is running (Escape)",
            "stopScript", Key(), false);
        row(Id::ZoomIn, "Zoom In", "Zooms in", "zoomIn", Key::ZoomIn, true);
        row(Id::ZoomOut, "Zoom Out", "Zooms out", "zoomOut", Key::ZoomOut, true);
        row(Id::ZoomExtents, "Zoom Extents", "Zooms in or out to fit the extents of the scene", "",
            Key(Qt::CTRL | Qt::Key_0), true);
        row(Id::ShowAllToolbars, "Show all", "Shows all toolbars", "", Key(), true);
        row(Id::HideAllToolbars, "Hide all", "Hides all toolbars", "", Key(), true);
        row(Id::ShowAllDockWidgets, "Show all", "Shows all dock widgets", "", Key(), true);
        row(Id::HideAllDockWidgets, "Hide all", "Hides all dock widgets", "", Key(), true);
        row(Id::Fullscreen, "Fullscreen", "Toggles fullscreen mode", "fullscreen", Key(Qt::Key_F11),
            true);
        row(Id::Help, "Help", "Shows the application's help file", "help", Key::HelpContents, true);
        row(Id::About, "About...", "Shows the application's About box", "info", Key(), true);
        row(Id::AboutQt, "About Qt...", "Shows the Qt library's About box", "qtLogo", Key(), true);
        row(Id::PlayPause, "Play/Pause", "Starts/Pauses the simulation", "play", Key(Qt::Key_Space),
            true);
        row(Id::Select, "Select/Move", "Selects and/or moves an item", "mousePointer", Key(), true);
        row(Id::Remove, "Remove", "Removes an item or a selection of items from the scene",
            "remove", Key(), true);
        row(Id::Explode, "Explode Item", "Explodes an item", "bomb", Key(), true);
        row(Id::Erase, "Erase Item", "Erases parts of an item", "eraser", Key(), true);
        row(Id::Camera, "Create Camera", "Creates a camera that follows an item", "camera", Key(),
            true);
        row(Id::Tracer, "Create Tracer", "Creates a tracer that follows an item", "tracer", Key(),
            false);
        row(Id::Gun, "Shoot Item", "Shoots an item", "gun", Key(), true);
        row(Id::Plot, "Create Plot", "Creates a plot for a given item", "graph", Key(), true);
        row(Id::Rectangle, "Create Rectangle", "Creates a rectangle", "rectangle", Key(), true);
        row(Id::Circle, "Create Circle", "Creates a circle", "circle", Key(), true);
        row(Id::Polygon, "Create Polygon", "Creates a polygon", "polygon", Key(), true);
        row(Id::Balloon, "Create Balloon", "Creates a balloon", "balloon", Key(), true);
        row(Id::Brush, "Create freehand shape", "Freehand drawing of random shapes", "brush", Key(),
            true);
        row(Id::Chain, "Create Chain", "Creates a chain", "chain", Key(), true);
        row(Id::Rope, "Create Rope", "Creates a rope", "rope", Key(), true);
        row(Id::Text, "Create Text", "Creates items from text", "text", Key(), true);
        row(Id::Gear, "Create Gear", "Creates a gear", "gear", Key(), true);
        row(Id::Image, "Create Image", "Creates a shape based on the outline of a (png) image",
            "image", Key(), true);
        row(Id::DistanceJoint, "Create Distance Joint",
            "Creates a distance joint between two items (or an item and the background)", "D",
            Key(), true);
        row(Id::RevoluteJoint, "Create Revolute Joint",
            "Creates a revolute joint between two items (or an item and the background)", "R",
            Key(), true);
        row(Id::PrismaticJoint, "Create Prismatic Joint",
            "Creates a prismatic joint between two items", "Pr", Key(), true);
        row(Id::PulleyJoint, "Create Pulley Joint", "Creates a pulley joint between two items",
            "Pu", Key(), true);
        row(Id::SpringForce, "Create Spring", "Creates a spring between two items", "spring", Key(),
            true);
        row(Id::Union, "Union", "Creates an item from the union of two other items", "union", Key(),
            true);
        row(Id::Difference, "Difference", "Creates an item from the difference of two other items",
            "difference", Key(), true);
        row(Id::Intersection, "Intersection",
            "Creates an item from the intersection of two other items", "intersection", Key(),
            true);
    }

    void actionTable()
    {
        QFETCH(Id, id);
        QFETCH(QString, text);
        QFETCH(QString, statusTip);
        QFETCH(QString, icon);
        QFETCH(QKeySequence, shortcut);
        QFETCH(bool, enabled);

        QAction* tableAction = action(id);
        QVERIFY(tableAction);
        QCOMPARE(tableAction->parent(), window());
        QCOMPARE(tableAction->text(), text);
        QCOMPARE(tableAction->statusTip(), statusTip);
        QCOMPARE(tableAction->shortcut(), shortcut);
        QCOMPARE(tableAction->isEnabled(), enabled);
        if (icon.isEmpty())
            QVERIFY(tableAction->icon().isNull());
        else
            QCOMPARE(iconImage(tableAction->icon()), resourceImage(icon));
    }

    void toolsFormOneExclusiveGroup()
    {
        QActionGroup* group = action(Id::Select)->actionGroup();
        QVERIFY(group);
        QVERIFY(group->isExclusive());
        const int first = int(Id::Select);
        const int last = int(Id::Intersection);
        QCOMPARE(group->actions().size(), last - first + 1);
        for (int id = first; id <= last; ++id) {
            QAction* tool = action(Id(id));
            QVERIFY2(qobject_cast<GraphicsViewAction*>(tool), qPrintable(tool->text()));
            QVERIFY(tool->isCheckable());
            QCOMPARE(tool->actionGroup(), group);
        }
        QVERIFY(action(Id::Select)->isChecked());
        QCOMPARE(static_cast<QAction*>(view()->currentAction), action(Id::Select));
        QVERIFY(action(Id::Fullscreen)->isCheckable());
        QVERIFY(!action(Id::Fullscreen)->actionGroup());
        QVERIFY(!action(Id::PlayPause)->isCheckable());
    }

    void toolBars_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("contents");
        QTest::newRow("GeneralToolbar")
            << "General Toolbar"
            << QStringList {
                   "Undo",          "Redo",       "Play/Pause",   "-",          "Select/Move",
                   "Remove",        "-",          "Explode Item", "Erase Item", "Create Camera",
                   "Create Tracer", "Shoot Item", "Create Plot"};
        QTest::newRow("BodiesToolbar")
            << "Bodies Toolbar"
            << QStringList {"Create Rectangle", "Create Circle",         "Create Polygon",
                            "Create Balloon",   "Create freehand shape", "Create Chain",
                            "Create Rope",      "Create Text",           "Create Gear",
                            "Create Image"};
        QTest::newRow("JointsToolbar")
            << "Joints Toolbar"
            << QStringList {"Create Distance Joint", "Create Revolute Joint",
                            "Create Prismatic Joint", "Create Pulley Joint"};
        QTest::newRow("ForcesToolbar") << "Forces Toolbar" << QStringList {"Create Spring"};
        QTest::newRow("BooleanToolbar")
            << "Boolean Toolbar" << QStringList {"Union", "Difference", "Intersection"};
        QTest::newRow("SnapToolbar") << "Snap Toolbar" << QStringList {"[SnapWidget]"};
        QTest::newRow("ActionContextToolbar") << "Action Context Toolbar" << QStringList();
    }

    void toolBars()
    {
        QFETCH(QString, title);
        QFETCH(QStringList, contents);
        auto* bar = window()->findChild<QToolBar*>(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY(bar);
        QCOMPARE(bar->parent(), window());
        QCOMPARE(bar->windowTitle(), title);
        QCOMPARE(entries(bar->actions()), contents);
        QCOMPARE(window()->toolBarArea(bar), Qt::TopToolBarArea);
        QVERIFY(bar->isVisibleTo(window()));
    }

    void toolBarOrder()
    {
        QStringList names;
        for (QToolBar* bar :
             window()->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
            names << bar->objectName();
        QCOMPARE(names,
                 QStringList({"GeneralToolbar", "BodiesToolbar", "JointsToolbar", "ForcesToolbar",
                              "BooleanToolbar", "SnapToolbar", "ActionContextToolbar"}));
        auto* context = window()->findChild<ActionContextToolBar*>();
        QVERIFY(context);
        QCOMPARE(context->objectName(), QStringLiteral("ActionContextToolbar"));
        // The snap widget and the strip of the current tool sit on a line of their own.
        QVERIFY(window()->toolBarBreak(window()->findChild<QToolBar*>("SnapToolbar")));
        QVERIFY(!window()->toolBarBreak(context));
    }

    void dockWidgets_data()
    {
        const Qt::DockWidgetAreas sides = Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea;
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("content");
        QTest::addColumn<Qt::DockWidgetAreas>("allowedAreas");
        QTest::addColumn<Qt::DockWidgetArea>("area");
        QTest::addColumn<QKeySequence>("shortcut");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("floating");
        // A desktop of exactly 1024 pixels counts as narrow.
        const bool wide = QApplication::desktop()->width() > 1024;
        QTest::newRow("SettingsDockWidget") << "Settings"
                                            << "SettingsWidget" << sides << Qt::LeftDockWidgetArea
                                            << QKeySequence(Qt::ALT | Qt::Key_S) << false << true;
        QTest::newRow("ConsoleDockWidget")
            << "Console"
            << "ConsoleWidget" << Qt::DockWidgetAreas(Qt::AllDockWidgetAreas)
            << Qt::BottomDockWidgetArea << QKeySequence(Qt::Key_AsciiTilde) << false << false;
        QTest::newRow("ScenePropertiesDockWidget")
            << "Scene Properties"
            << "ScenePropertiesWidget" << sides << Qt::LeftDockWidgetArea
            << QKeySequence(Qt::SHIFT | Qt::Key_S) << false << false;
        QTest::newRow("PropertyEditorDockWidget")
            << "Property Editor"
            << "PropertyEditorWidget" << sides << Qt::RightDockWidgetArea
            << QKeySequence(Qt::SHIFT | Qt::Key_P) << wide << false;
        QTest::newRow("QuickLoadDockWidget")
            << "Quick Load"
            << "QuickLoadWidget" << sides << Qt::LeftDockWidgetArea
            << QKeySequence(Qt::SHIFT | Qt::Key_Q) << true << false;
        QTest::newRow("UndoViewDockWidget")
            << "Commands History"
            << "" << Qt::DockWidgetAreas(Qt::AllDockWidgetAreas) << Qt::RightDockWidgetArea
            << QKeySequence(Qt::SHIFT | Qt::Key_C) << false << false;
    }

    void dockWidgets()
    {
        QFETCH(QString, title);
        QFETCH(QString, content);
        QFETCH(Qt::DockWidgetAreas, allowedAreas);
        QFETCH(Qt::DockWidgetArea, area);
        QFETCH(QKeySequence, shortcut);
        QFETCH(bool, shown);
        QFETCH(bool, floating);
        auto* dock = window()->findChild<QDockWidget*>(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY(dock);
        QCOMPARE(dock->windowTitle(), title);
        QVERIFY(dock->widget());
        if (content.isEmpty()) {
            auto* undoView = qobject_cast<QUndoView*>(dock->widget());
            QVERIFY(undoView);
            QCOMPARE(undoView->stack(), application()->undoStack);
        } else {
            QCOMPARE(dock->widget()->objectName(), content);
        }
        QCOMPARE(dock->allowedAreas(), allowedAreas);
        QCOMPARE(window()->dockWidgetArea(dock), area);
        QCOMPARE(dock->toggleViewAction()->shortcut(), shortcut);
        QCOMPARE(dock->isVisibleTo(window()), shown);
        QCOMPARE(dock->isFloating(), floating);
    }

    void dockOrder()
    {
        QStringList names;
        for (QDockWidget* dock : window()->findChildren<QDockWidget*>())
            names << dock->objectName();
        QCOMPARE(
            names,
            QStringList({"SettingsDockWidget", "ConsoleDockWidget", "ScenePropertiesDockWidget",
                         "PropertyEditorDockWidget", "QuickLoadDockWidget", "UndoViewDockWidget"}));
    }

    void menus()
    {
        const QList<QAction*> bar = window()->menuBar()->actions();
        QCOMPARE(entries(bar), QStringList({"<&File>", "<&Edit>", "<&View>", "-", "<&Help>"}));
        QCOMPARE(entries(bar.at(0)->menu()->actions()),
                 QStringList({"New Scene", "-", "Save Scene", "Save Scene As...", "Load Scene...",
                              "-", "Upload Scene...", "Download Scenes...", "-", "Export...", "-",
                              "Evaluate Script...", "-", "Quit"}));
        QCOMPARE(entries(bar.at(1)->menu()->actions()),
                 QStringList({"Undo", "Redo", "Select All", "-", "Stop Script"}));
        const QList<QAction*> viewEntries = bar.at(2)->menu()->actions();
        QCOMPARE(entries(viewEntries),
                 QStringList({"<Zoom>", "<Toolbars>", "<Dock Widgets>", "<Perspectives>", "-",
                              "Fullscreen"}));
        QCOMPARE(entries(bar.at(4)->menu()->actions()),
                 QStringList({"Help", "-", "About...", "About Qt..."}));

        QMenu* zoom = viewEntries.at(0)->menu();
        QCOMPARE(entries(zoom->actions()), QStringList({"Zoom In", "Zoom Out", "Zoom Extents"}));
        QCOMPARE(iconImage(zoom->icon()), resourceImage(QStringLiteral("zoom")));
        QCOMPARE(entries(viewEntries.at(1)->menu()->actions()),
                 QStringList({"General Toolbar", "Bodies Toolbar", "Joints Toolbar",
                              "Forces Toolbar", "Boolean Toolbar", "Snap Toolbar",
                              "Action Context Toolbar", "-", "Show all", "Hide all"}));
        QCOMPARE(viewEntries.at(1)->menu()->actions().at(8), action(Id::ShowAllToolbars));
        QCOMPARE(entries(viewEntries.at(2)->menu()->actions()),
                 QStringList({"Settings", "Console", "Scene Properties", "Property Editor",
                              "Quick Load", "Commands History", "-", "Show all", "Hide all"}));
        QCOMPARE(viewEntries.at(2)->menu()->actions().at(7), action(Id::ShowAllDockWidgets));
        QMenu* perspectives = viewEntries.at(3)->menu();
        QCOMPARE(perspectives->actions(), window()->perspectives());
        QCOMPARE(iconImage(perspectives->icon()), resourceImage(QStringLiteral("perspective")));
    }

    void statusBarLabels()
    {
        auto* installed = qobject_cast<StatusBar*>(window()->statusBar());
        QVERIFY(installed);

        StatusBar bar(window());
        const QList<QLabel*> labels
            = bar.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(labels.size(), 3);
        QCOMPARE(labels.at(0)->text(), QStringLiteral("<B>FPS</B>: ?"));
        QCOMPARE(labels.at(1)->text(), QStringLiteral("<B>X</B>: ?"));
        QCOMPARE(labels.at(2)->text(), QStringLiteral("<B>Y</B>: ?"));
        QCOMPARE(labels.at(0)->width(), 70);
        QCOMPARE(labels.at(1)->width(), 80);
        QCOMPARE(labels.at(2)->width(), 80);

        bar.setFramesPerSecond(59);
        bar.setScenePosition(QPointF(1.23456, -0.5));
        QCOMPARE(labels.at(0)->text(), QStringLiteral("<B>FPS</B>: 59"));
        QCOMPARE(labels.at(1)->text(), QStringLiteral("<B>X</B>: 1.235"));
        QCOMPARE(labels.at(2)->text(), QStringLiteral("<B>Y</B>: -0.500"));

        // Permanent widgets, in this order from left to right.
        bar.resize(600, 30);
        bar.show();
        QVERIFY(labels.at(0)->x() < labels.at(1)->x());
        QVERIFY(labels.at(1)->x() < labels.at(2)->x());
        bar.showMessage(QStringLiteral("message"));
        QVERIFY(labels.at(0)->isVisible());
    }

    void escapeReturnsToSelectTool()
    {
        CountingTool tool(window(), view());
        action(Id::Select)->actionGroup()->addAction(&tool);
        QVERIFY(
            connect(&tool, SIGNAL(triggered()), window(), SLOT(onGraphicsViewActionTriggered())));
        tool.trigger();
        QCOMPARE(view()->currentAction, &tool);
        QVERIFY(!action(Id::Select)->isChecked());
        QCOMPARE(tool.resets, 0);

        QTest::keyClick(window(), Qt::Key_Escape);
        QCOMPARE(tool.resets, 1);
        QVERIFY(action(Id::Select)->isChecked());
        QCOMPARE(static_cast<QAction*>(view()->currentAction), action(Id::Select));
    }

    void choosingSelectAgainCancelsIt()
    {
        QCOMPARE(static_cast<QAction*>(view()->currentAction), action(Id::Select));
        // The select tool's reset leaves the rubber band mode; that shows its cancel().
        view()->setDragMode(QGraphicsView::RubberBandDrag);
        action(Id::Select)->trigger();
        QCOMPARE(view()->dragMode(), QGraphicsView::NoDrag);
        QVERIFY(action(Id::Select)->isChecked());
        QCOMPARE(static_cast<QAction*>(view()->currentAction), action(Id::Select));
    }

    // The bar shows the current tool's strip and no other; a strip enters it once.
    void contextToolBarShowsTheCurrentStrip()
    {
        auto* context = window()->findChild<ActionContextToolBar*>();
        auto visibleStrips = [context] {
            QList<QWidget*> shown;
            for (QAction* entry : context->actions()) {
                if (entry->isVisible())
                    shown.append(context->widgetForAction(entry));
            }
            return shown;
        };
        auto strip = [this](Id id) {
            return static_cast<QWidget*>(
                qobject_cast<GraphicsViewAction*>(action(id))->contextWidget);
        };
        action(Id::Chain)->trigger();
        const int entries = context->actions().size();
        QCOMPARE(visibleStrips(), QList<QWidget*>({strip(Id::Chain)}));
        action(Id::Gear)->trigger();
        QCOMPARE(visibleStrips(), QList<QWidget*>({strip(Id::Gear)}));
        action(Id::Chain)->trigger();
        QCOMPARE(context->actions().size(), entries + 1);
        QCOMPARE(visibleStrips(), QList<QWidget*>({strip(Id::Chain)}));
        action(Id::Select)->trigger();
        QCOMPARE(visibleStrips(), QList<QWidget*>());
        QCOMPARE(context->actions().size(), entries + 1);
    }

    void playPauseIconFollowsWorld()
    {
        QAction* playPause = action(Id::PlayPause);
        const QImage play = resourceImage(QStringLiteral("play"));
        const QImage pause = resourceImage(QStringLiteral("pause"));
        QCOMPARE(iconImage(playPause->icon()), play);

        world()->start();
        QCOMPARE(iconImage(playPause->icon()), pause);
        world()->stop();
        QCOMPARE(iconImage(playPause->icon()), play);

        application()->scriptEngine->evaluate(QStringLiteral("world.start()"));
        QVERIFY(world()->running());
        QCOMPARE(iconImage(playPause->icon()), pause);
        application()->scriptEngine->evaluate(QStringLiteral("world.stop()"));
        QCOMPARE(iconImage(playPause->icon()), play);

        // Through the action, playing is a command and pausing is none.
        const int commands = application()->undoStack->count();
        playPause->trigger();
        QVERIFY(world()->running());
        QCOMPARE(iconImage(playPause->icon()), pause);
        playPause->trigger();
        QVERIFY(!world()->running());
        QCOMPARE(iconImage(playPause->icon()), play);
        QCOMPARE(application()->undoStack->count(), commands + 1);
        application()->undoStack->clear();
    }

    void dialogsPauseTheWorld()
    {
        world()->start();
        bool runningMeanwhile = true;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<ExportDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            runningMeanwhile = world()->running();
            dialog->reject();
        });
        action(Id::Export)->trigger();
        QVERIFY(!runningMeanwhile);
        QVERIFY(world()->running());
        world()->stop();
    }

    void undoAndRedoActOnStack()
    {
        QUndoStack* stack = application()->undoStack;
        stack->clear();
        QVERIFY(!action(Id::Undo)->isEnabled());
        bool done = false;
        stack->push(new FlagCommand(&done));
        QVERIFY(done);
        QVERIFY(action(Id::Undo)->isEnabled());
        QVERIFY(!action(Id::Redo)->isEnabled());

        action(Id::Undo)->trigger();
        QVERIFY(!done);
        QCOMPARE(stack->index(), 0);
        QVERIFY(action(Id::Redo)->isEnabled());
        action(Id::Redo)->trigger();
        QVERIFY(done);
        QCOMPARE(stack->index(), 1);
        stack->clear();
    }

    void titleAndStatusFollowFiles_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("title");
        QTest::newRow("saved") << "saved"
                               << "File saved (scene1.scene)"
                               << "Brivane - scene1.scene";
        QTest::newRow("loaded") << "loaded"
                                << "File loaded (scene1.scene)"
                                << "Brivane - scene1.scene";
        QTest::newRow("created") << "created"
                                 << "New file created"
                                 << "Brivane";
    }

    void titleAndStatusFollowFiles()
    {
        QFETCH(QString, signal);
        QFETCH(QString, message);
        QFETCH(QString, title);
        window()->setWindowTitle(QStringLiteral("before"));
        const QString filename = QStringLiteral("/x/y/scene1.scene");
        if (signal == QLatin1String("saved"))
            emit application()->fileSaved(filename);
        else if (signal == QLatin1String("loaded"))
            emit application()->fileLoaded(filename);
        else
            emit application()->fileCreated();
        QCOMPARE(window()->statusBar()->currentMessage(), message);
        QCOMPARE(window()->windowTitle(), title);
        // Messages of files go away after three seconds.
        QTRY_VERIFY_WITH_TIMEOUT(window()->statusBar()->currentMessage().isEmpty(), 4000);
    }

    void newSceneActionMakesGroundedScene()
    {
        world()->createRectangle(0, 5, 0, 1, 1);
        QSignalSpy created(application(), &Application::fileCreated);
        action(Id::New)->trigger();
        QCOMPARE(created.count(), 1);
        // The ground of a new scene: a floor and two walls.
        QCOMPARE(world()->activeItems().size(), 3);
    }

    void childrenAddedAfterStartUpAreDeletedWithScene()
    {
        QVERIFY(window()->unknownChildren().isEmpty());
        QPointer<QObject> late = new QObject(window());
        QPointer<QWidget> lateWindow = new QWidget(window(), Qt::Tool);
        QPointer<QObject> movedAway = new QObject(window());
        QPointer<QObject> gone = new QObject(window());
        // Parented while start-up still runs: part of the window for good.
        application()->initialised = false;
        QPointer<QObject> early = new QObject(window());
        application()->initialised = true;
        QCOMPARE(window()->unknownChildren(),
                 QObjectList({late.data(), lateWindow.data(), movedAway.data(), gone.data()}));

        QObject elsewhere;
        movedAway->setParent(&elsewhere);
        delete gone;
        QCOMPARE(window()->unknownChildren(), QObjectList({late.data(), lateWindow.data()}));

        window()->deleteUnknownChildren();
        QVERIFY(window()->unknownChildren().isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(late.isNull());
        QVERIFY(lateWindow.isNull());
        QVERIFY(!movedAway.isNull());
        QVERIFY(!early.isNull());
        delete early;
    }

    void newSceneDeletesTrackedChildren()
    {
        QPointer<QObject> late = new QObject(window());
        application()->newFile(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(late.isNull());
    }

    void tabbedDocksSurviveNewScene()
    {
        const QByteArray layout = window()->saveState();
        auto* console = window()->findChild<QDockWidget*>(QStringLiteral("ConsoleDockWidget"));
        auto* history = window()->findChild<QDockWidget*>(QStringLiteral("UndoViewDockWidget"));
        auto* editor
            = window()->findChild<QDockWidget*>(QStringLiteral("PropertyEditorDockWidget"));
        // Tabbing docks at run time makes the window's layout create a tab bar as a child.
        window()->tabifyDockWidget(editor, history);
        editor->show();
        history->show();
        QCoreApplication::processEvents();
        QVERIFY(window()->findChild<QTabBar*>());

        window()->deleteUnknownChildren();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(window()->findChild<QTabBar*>());
        window()->tabifyDockWidget(history, console);
        console->show();
        QCoreApplication::processEvents();
        QCOMPARE(window()->tabifiedDockWidgets(console).size(), 2);
        QVERIFY(window()->restoreState(layout));
    }

    void zoomActionsChangeScale()
    {
        const double start = view()->scale();
        action(Id::ZoomIn)->trigger();
        QVERIFY(view()->scale() > start);
        action(Id::ZoomOut)->trigger();
        QVERIFY(qFuzzyCompare(view()->scale(), start));
        action(Id::ZoomOut)->trigger();
        QVERIFY(view()->scale() < start);
        view()->setScale(1.5);
        action(Id::ZoomExtents)->trigger();
        QVERIFY(view()->scale() > 1.5);
    }

    void showAndHideAll_data()
    {
        QTest::addColumn<Id>("hideAll");
        QTest::addColumn<Id>("showAll");
        QTest::addColumn<bool>("docks");
        QTest::newRow("toolbars") << Id::HideAllToolbars << Id::ShowAllToolbars << false;
        QTest::newRow("docks") << Id::HideAllDockWidgets << Id::ShowAllDockWidgets << true;
    }

    void showAndHideAll()
    {
        QFETCH(Id, hideAll);
        QFETCH(Id, showAll);
        QFETCH(bool, docks);
        const QByteArray layout = window()->saveState();
        QList<QWidget*> bars;
        if (docks) {
            for (QDockWidget* dock : window()->findChildren<QDockWidget*>())
                bars << dock;
        } else {
            for (QToolBar* bar : window()->findChildren<QToolBar*>())
                bars << bar;
        }
        QCOMPARE(bars.size(), docks ? 6 : 7);

        action(showAll)->trigger();
        for (QWidget* bar : bars)
            QVERIFY2(!bar->isHidden(), qPrintable(bar->objectName()));
        action(hideAll)->trigger();
        for (QWidget* bar : bars)
            QVERIFY2(bar->isHidden(), qPrintable(bar->objectName()));
        QVERIFY(window()->restoreState(layout));
    }

    void fullScreenFollowsWindow()
    {
        QAction* fullscreen = action(Id::Fullscreen);
        const Qt::WindowStates before = window()->windowState();
        QVERIFY(!fullscreen->isChecked());

        fullscreen->trigger();
        QVERIFY(window()->isFullScreen());
        QVERIFY(fullscreen->isChecked());
        fullscreen->trigger();
        QVERIFY(!window()->isFullScreen());
        QVERIFY(!fullscreen->isChecked());
        QCOMPARE(window()->windowState(), before);

        // Changes of the window by another way check and uncheck the action, and the
        // resulting toggles do not flip the window back.
        window()->setWindowState(before | Qt::WindowFullScreen);
        QVERIFY(fullscreen->isChecked());
        QVERIFY(window()->isFullScreen());
        window()->setWindowState(before);
        QVERIFY(!fullscreen->isChecked());
        QVERIFY(!window()->isFullScreen());
    }

    void languageChangeRetranslates()
    {
        action(Id::Upload)->setStatusTip(QString());
        action(Id::New)->setText(QString());
        window()->findChild<QToolBar*>(QStringLiteral("BodiesToolbar"))->setWindowTitle(QString());
        window()
            ->findChild<QDockWidget*>(QStringLiteral("ConsoleDockWidget"))
            ->setWindowTitle(QString());
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(window(), &change);
        QCOMPARE(action(Id::Upload)->statusTip(),
                 QStringLiteral("Uploads current scene to %1").arg(websiteUrl().toString()));
        QCOMPARE(action(Id::New)->text(), QStringLiteral("New Scene"));
        QCOMPARE(window()->findChild<QToolBar*>(QStringLiteral("BodiesToolbar"))->windowTitle(),
                 QStringLiteral("Bodies Toolbar"));
        QCOMPARE(
            window()->findChild<QDockWidget*>(QStringLiteral("ConsoleDockWidget"))->windowTitle(),
            QStringLiteral("Console"));
    }

    void perspectives_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("shownDocks");
        QTest::addColumn<int>("quickLoadArea");
        QTest::addColumn<bool>("compact");
        const int left = Qt::LeftDockWidgetArea;
        QTest::newRow("Classic") << 0 << "Classic"
                                 << QStringList {"ScenePropertiesDockWidget", "QuickLoadDockWidget",
                                                 "PropertyEditorDockWidget"}
                                 << left << false;
        QTest::newRow("Compact") << 1 << "Compact" << QStringList() << left << true;
        QTest::newRow("Minimal") << 2 << "Minimal" << QStringList() << left << false;
        QTest::newRow("QuickLoad") << 3 << "QuickLoad" << QStringList {"QuickLoadDockWidget"}
                                   << int(Qt::RightDockWidgetArea) << false;
    }

    void perspectives()
    {
        QFETCH(int, index);
        QFETCH(QString, name);
        QFETCH(QStringList, shownDocks);
        QFETCH(int, quickLoadArea);
        QFETCH(bool, compact);
        QCOMPARE(window()->perspectives().size(), 4);
        QAction* perspective = window()->perspectives().at(index);
        QCOMPARE(perspective->text(), name);
        QCOMPARE(perspective->shortcut(), QKeySequence(Qt::ALT | (Qt::Key_1 + index)));
        perspective->trigger();
        for (QDockWidget* dock : window()->findChildren<QDockWidget*>()) {
            QCOMPARE(dock->isVisibleTo(window()), shownDocks.contains(dock->objectName()));
            QCOMPARE(dock->isFloating(), dock->objectName() == "SettingsDockWidget");
        }
        const auto dock = [this](const char* name) {
            return window()->dockWidgetArea(window()->findChild<QDockWidget*>(name));
        };
        QCOMPARE(int(dock("QuickLoadDockWidget")), quickLoadArea);
        QCOMPARE(dock("ConsoleDockWidget"), Qt::BottomDockWidgetArea);
        QCOMPARE(dock("UndoViewDockWidget"), Qt::RightDockWidgetArea);
        for (QToolBar* bar : window()->findChildren<QToolBar*>()) {
            QVERIFY(bar->isVisibleTo(window()));
            Qt::ToolBarArea area = Qt::TopToolBarArea;
            if (compact && bar->objectName() == "ActionContextToolbar")
                area = Qt::BottomToolBarArea;
            else if (compact && bar->objectName() != "SnapToolbar")
                area = Qt::LeftToolBarArea;
            QCOMPARE(window()->toolBarArea(bar), area);
        }
    }

    // What the file dialogs give: the typed name, the extension added only where it is not
    // already there in lower case, nothing at all on Cancel.
    void saveAsAddsTheExtension_data()
    {
        QTest::addColumn<QString>("typed"); // empty: the dialog is cancelled
        QTest::addColumn<QString>("saved");
        QTest::newRow("bare name") << "first"
                                   << "first.scene";
        QTest::newRow("with extension") << "second.scene"
                                        << "second.scene";
        QTest::newRow("upper-case extension") << "third.SCENE"
                                              << "third.SCENE.scene";
        QTest::newRow("cancelled") << QString() << QString();
    }

    void saveAsAddsTheExtension()
    {
        QFETCH(QString, typed);
        QFETCH(QString, saved);
        QTemporaryDir directory;
        application()->newFile(false);
        QCOMPARE(application()->fileName, QString());
        // With no file yet, Save asks as Save As does.
        answerFileDialog(typed.isEmpty() ? QString() : directory.filePath(typed));
        action(Id::Save)->trigger();
        QCOMPARE(dialogCaption, QStringLiteral("Save"));
        const QString expected = saved.isEmpty() ? QString() : directory.filePath(saved);
        QCOMPARE(application()->fileName, expected);
        QCOMPARE(QDir(directory.path()).entryList(QDir::Files),
                 saved.isEmpty() ? QStringList() : QStringList(saved));
    }

    void loadAsksForScene()
    {
        QTemporaryDir directory;
        const QString scene = directory.filePath(QStringLiteral("kept.scene"));
        world()->createCircle(0, 3, 0, 1);
        QVERIFY(application()->save(scene));
        application()->newFile(false);
        answerFileDialog(scene);
        action(Id::Load)->trigger();
        QCOMPARE(dialogCaption, QStringLiteral("Load"));
        QCOMPARE(application()->fileName, scene);
        QCOMPARE(world()->bodyItems().size(), 1);
        QCOMPARE(window()->windowTitle(), QStringLiteral("Brivane - kept.scene"));
    }

    void evaluateScriptAsksForFile()
    {
        QTemporaryDir directory;
        const QString script = directory.filePath(QStringLiteral("mark.script"));
        QFile file(script);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("var evaluatedFromMenu = 42;");
        file.close();

        QString caption;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            caption = dialog->windowTitle();
            dialog->selectFile(script);
            static_cast<QDialog*>(dialog)->accept();
        });
        action(Id::EvaluateScript)->trigger();
        QCOMPARE(caption, QStringLiteral("Load"));
        QCOMPARE(application()
                     ->scriptEngine->globalObject()
                     .property(QStringLiteral("evaluatedFromMenu"))
                     .toInt32(),
                 42);
    }

    void quitClosesWindowAndStoresLayout()
    {
        Settings::instance()->setMainWindowState(QByteArray());
        // The support dialog comes, and its Quit button closes it and the window.
        bool supportAsked = false;
        QTimer::singleShot(0, this, [&supportAsked] {
            if (auto* social = qobject_cast<SocialDialog*>(QApplication::activeModalWidget())) {
                supportAsked = true;
                social->findChild<QDialogButtonBox*>()->buttons().first()->click();
            }
        });
        action(Id::Quit)->trigger();
        QVERIFY(supportAsked);
        QVERIFY(!window()->isVisible());
        QCOMPARE(Settings::instance()->mainWindowState, window()->saveState(0));
    }
};

int main(int argc, char* argv[])
{
    // The program as started for the first time, on a screen without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString ini = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()
        + QStringLiteral("/Brivane.ini");
    QFile::remove(ini);
    Application application(argc, argv);
    Settings::instance()->showTipsAtStartup = false;
    application.initialise();
    TestMainWindow test;
    const int result = QTest::qExec(&test, argc, argv);
    QFile::remove(ini);
    return result;
}

#include "tst_mainwindow.moc"
