// Arranges the main window as each layout the program ships and writes the saved states into
// the ini file that the resources embed as :/text/db.ini. Run it again whenever a dock or a
// toolbar is added or renamed:
//   ninja -C build MakePerspectives && build/tools/MakePerspectives resources/text/db.ini
#include "Application/Application.h"
#include "Gui/MainWindow.h"

#include <QDockWidget>
#include <QSettings>
#include <QTextStream>
#include <QToolBar>

namespace {
struct Perspective
{
    const char* name;
    QSize centralArea;
    bool leftDocks; // scene properties above quick load, in the left area
    bool quickLoadRight; // quick load alone, in the right area
    bool propertyEditor;
    bool compactToolBars;
};

template<typename T> T* child(MainWindow* window, const char* name)
{
    T* found = window->findChild<T*>(QLatin1String(name));
    if (!found)
        qFatal("The main window has no %s", name);
    return found;
}

void arrangeToolBars(MainWindow* window, bool compact)
{
    auto bar = [window](const char* name) { return child<QToolBar>(window, name); };
    for (QToolBar* toolBar : window->findChildren<QToolBar*>())
        window->removeToolBar(toolBar);
    const auto add = [window](Qt::ToolBarArea area, QToolBar* toolBar) {
        window->addToolBar(area, toolBar);
        toolBar->show();
    };
    if (compact) {
        add(Qt::LeftToolBarArea, bar("GeneralToolbar"));
        add(Qt::LeftToolBarArea, bar("BooleanToolbar"));
        window->addToolBarBreak(Qt::LeftToolBarArea);
        for (const char* name : {"BodiesToolbar", "JointsToolbar", "ForcesToolbar"})
            add(Qt::LeftToolBarArea, bar(name));
        add(Qt::TopToolBarArea, bar("SnapToolbar"));
        add(Qt::BottomToolBarArea, bar("ActionContextToolbar"));
        return;
    }
    for (const char* name : {"GeneralToolbar", "BodiesToolbar", "JointsToolbar", "ForcesToolbar",
                             "BooleanToolbar", "SnapToolbar"})
        add(Qt::TopToolBarArea, bar(name));
    window->addToolBarBreak(Qt::TopToolBarArea);
    add(Qt::TopToolBarArea, bar("ActionContextToolbar"));
}

QByteArray arrange(MainWindow* window, const Perspective& perspective)
{
    auto dock = [window](const char* name) { return child<QDockWidget>(window, name); };
    QDockWidget* settings = dock("SettingsDockWidget");
    QDockWidget* console = dock("ConsoleDockWidget");
    QDockWidget* sceneProperties = dock("ScenePropertiesDockWidget");
    QDockWidget* propertyEditor = dock("PropertyEditorDockWidget");
    QDockWidget* quickLoad = dock("QuickLoadDockWidget");
    QDockWidget* undoView = dock("UndoViewDockWidget");

    arrangeToolBars(window, perspective.compactToolBars);
    for (QDockWidget* each :
         {settings, console, sceneProperties, propertyEditor, quickLoad, undoView})
        each->setFloating(false);
    window->addDockWidget(Qt::LeftDockWidgetArea, settings);
    window->addDockWidget(Qt::BottomDockWidgetArea, console);
    window->addDockWidget(Qt::RightDockWidgetArea, undoView);
    window->addDockWidget(Qt::LeftDockWidgetArea, sceneProperties);
    window->addDockWidget(
        perspective.quickLoadRight ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea, quickLoad);
    window->addDockWidget(Qt::RightDockWidgetArea, propertyEditor);
    if (!perspective.quickLoadRight)
        window->splitDockWidget(sceneProperties, quickLoad, Qt::Vertical);
    settings->setFloating(true);
    settings->hide();
    console->hide();
    undoView->hide();
    sceneProperties->setVisible(perspective.leftDocks);
    quickLoad->setVisible(perspective.leftDocks || perspective.quickLoadRight);
    propertyEditor->setVisible(perspective.propertyEditor);

    const int sideWidth = 293;
    const int leftWidth = perspective.leftDocks ? 298 : 0;
    const int rightWidth = perspective.propertyEditor || perspective.quickLoadRight ? sideWidth : 0;
    window->resize(perspective.centralArea.width() + leftWidth + rightWidth,
                   perspective.centralArea.height() + 150);
    QCoreApplication::processEvents();
    if (perspective.leftDocks) {
        window->resizeDocks({sceneProperties, quickLoad}, {487, 366}, Qt::Vertical);
        window->resizeDocks({sceneProperties}, {leftWidth}, Qt::Horizontal);
    }
    if (perspective.propertyEditor)
        window->resizeDocks({propertyEditor}, {sideWidth}, Qt::Horizontal);
    if (perspective.quickLoadRight)
        window->resizeDocks({quickLoad}, {sideWidth}, Qt::Horizontal);
    QCoreApplication::processEvents();
    return window->saveState(0);
}
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    if (argc != 2) {
        QTextStream(stderr) << "usage: MakePerspectives <ini file>\n";
        return 2;
    }
    application.initialise();
    const Perspective perspectives[] = {
        {"Classic", QSize(1077, 859), true, false, true, false},
        {"Compact", QSize(1600, 861), false, false, false, true},
        {"Minimal", QSize(1680, 859), false, false, false, false},
        {"QuickLoad", QSize(1381, 859), false, true, false, false},
    };
    QSettings ini(QString::fromLocal8Bit(argv[1]), QSettings::IniFormat);
    ini.clear();
    ini.beginGroup(QStringLiteral("PERSPECTIVES"));
    for (const Perspective& perspective : perspectives)
        ini.setValue(QLatin1String(perspective.name), arrange(application.mainWindow, perspective));
    ini.endGroup();
    ini.sync();
    return ini.status() == QSettings::NoError ? 0 : 1;
}
