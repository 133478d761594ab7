#pragma once

#include <QList>
#include <QMainWindow>
#include <QObjectList>
#include <QVector>
#include <array>

class ActionContextToolBar;
class QDialog;
class QuickLoadWidget;
class ConsoleWidget;
class GraphicsView;
class GraphicsViewAction;
class PhysicsItem;
class PropertyEditorWidget;
class QActionGroup;
class QDockWidget;
class QMenu;
class QToolBar;
class StatusBar;

// The one top-level window of the program. It owns the central view, every action of the
// program, the menus, the toolbars, the status bar and the docks, all through the Qt parent
// tree. It turns actions into calls on the application, the world and the view, and shows
// their outcome in the title and the status bar; the scene, the undo stack and the file name
// belong to the application. Objects that become its children after start-up are tracked and
// deleted with the scene.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Every action of the window in order of creation; perspective actions are kept apart.
    enum class ActionId {
        New,
        Save,
        SaveAs,
        Load,
        Upload,
        Download,
        Export,
        EvaluateScript,
        Quit,
        Undo,
        Redo,
        SelectAll,
        StopScript,
        ZoomIn,
        ZoomOut,
        ZoomExtents,
        ShowAllToolbars,
        HideAllToolbars,
        ShowAllDockWidgets,
        HideAllDockWidgets,
        Fullscreen,
        Help,
        About,
        AboutQt,
        PlayPause,
        Select,
        Remove,
        Explode,
        Erase,
        Camera,
        Tracer,
        Gun,
        Plot,
        Rectangle,
        Circle,
        Polygon,
        Balloon,
        Brush,
        Chain,
        Rope,
        Text,
        Gear,
        Image,
        DistanceJoint,
        RevoluteJoint,
        PrismaticJoint,
        PulleyJoint,
        SpringForce,
        Union,
        Difference,
        Intersection,
        Count,
        // Not an action: marks a separator in the contents of menus and toolbars.
        Separator
    };
    Q_ENUM(ActionId)

    explicit MainWindow(QWidget* parent = nullptr);

    GraphicsView* graphicsView() const { return view; }
    ConsoleWidget* console() const { return consoleWidget; }
    QAction* action(ActionId id) const { return actions[std::size_t(id)]; }
    // The stored layouts of the View menu, in the order of their shortcuts.
    const QList<QAction*>& perspectives() const { return perspectiveActions; }

    // Deletes, later, every tracked child that is still a child of this window, except the
    // parts of the window's own dock layout, and forgets them all. A new scene calls it, so
    // that windows opened on the old scene go with it.
    void deleteUnknownChildren();

    // A copy of the children tracked since start-up.
    Q_INVOKABLE QObjectList unknownChildren() const { return trackedChildren; }

protected:
    void childEvent(QChildEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void onSceneSelectionChanged(PhysicsItem* pSelectedPhysicsItem);
    void onGraphicsViewActionTriggered();
    void onFileCreated();
    void onFileSaved(QString filename);
    void onFileLoaded(QString filename);
    void onNew();
    void onSave();
    void onSaveAs();
    void onLoad();
    void onUpload();
    void onDownload();
    void onExport();
    void onPerspectiveSelected();
    void onEvaluateScript();
    void onQuit();
    void onSelectAll();
    void onStopScript();
    void onZoomIn();
    void onZoomOut();
    void onZoomExtents();
    void onShowAllToolbars();
    void onHideAllToolbars();
    void onShowAllDockWidgets();
    void onHideAllDockWidgets();
    void onFullScreen(bool fullscreen);
    void onHelp();
    void onAbout();
    void onAboutQt();

private:
    struct ActionRow;
    struct ToolBarRow;
    struct DockRow;
    struct MenuRow;
    using ActionIds = QVector<ActionId>;

    // Runs a modal dialog with the world paused, and lets a running world go on after.
    static void runPaused(QDialog& dialog);

    static const std::array<ActionRow, std::size_t(ActionId::Count)>& actionRows();
    static const QVector<ToolBarRow>& toolBarRows();
    static const QVector<DockRow>& dockRows();
    static const QVector<MenuRow>& menuRows();

    void createActions();
    // One action per stored layout, with Alt and its number.
    void createPerspectiveActions();
    void createMenus();
    void createToolBars();
    void createDockWidgets();
    void fillMenus();
    void retranslate();
    // Adds the actions in order to a menu or a toolbar.
    void addActionList(QWidget* widget, const ActionIds& ids);
    // One entry per toolbar or dock, then the two entries that show or hide them all.
    void fillVisibilityMenu(QMenu* menu, const QList<QAction*>& toggles, ActionId showAll,
                            ActionId hideAll);
    void showFileMessage(const QString& message, const QString& filename);

    // Makers of the action table: each creates an action of its kind and connects it.
    QAction* makeCommand(const ActionRow& row);
    QAction* makeFullscreenToggle(const ActionRow& row);
    QAction* makeUndo(const ActionRow& row);
    QAction* makeRedo(const ActionRow& row);
    QAction* makePlayPause(const ActionRow& row);
    template<typename Tool> QAction* makeTool(const ActionRow& row);
    // A tool whose class is still to come: in its place and group, but disabled.
    QAction* makeUnavailableTool(const ActionRow& row);
    // Checkable, in the exclusive group, and switched to through the one switching slot.
    QAction* addTool(GraphicsViewAction* tool);

    GraphicsView* view;
    std::array<QAction*, std::size_t(ActionId::Count)> actions {};
    QActionGroup* toolGroup;
    QMenu* fileMenu = nullptr;
    QMenu* editMenu = nullptr;
    QMenu* viewMenu = nullptr;
    QMenu* zoomMenu = nullptr;
    QMenu* toolBarsMenu = nullptr;
    QMenu* dockWidgetsMenu = nullptr;
    QMenu* perspectivesMenu = nullptr;
    QMenu* helpMenu = nullptr;
    // In the order of the toolbar and dock tables, for their titles.
    QList<QToolBar*> toolBars;
    QList<QDockWidget*> dockWidgets;
    QList<QAction*> perspectiveActions;
    ActionContextToolBar* contextToolBar = nullptr;
    StatusBar* statusLine = nullptr;
    PropertyEditorWidget* propertyEditor = nullptr;
    QuickLoadWidget* quickLoad = nullptr;
    ConsoleWidget* consoleWidget = nullptr;
    QObjectList trackedChildren;
};
