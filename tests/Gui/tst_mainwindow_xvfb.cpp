#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/MainWindow.h"
#include "Gui/PlotWidget.h"
#include "Gui/PropertyEditorWidget.h"
#include "Gui/QPropertyEditorWidget.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Tools/ActionContextToolBar.h"
#include "Tools/ActionContextWidget.h"
#include "Tools/GraphicsViewAction.h"
#include "View/CameraGraphicsView.h"
#include "View/GraphicsView.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QGLWidget>
#include <QGraphicsItem>
#include <QLabel>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

namespace {
// The saved pictures, under the working directory of the tests.
const char* const artifactPath = "artifacts/mainwindow.png";
const char* const propertyEditorArtifactPath = "artifacts/propertyeditor.png";
const char* const cameraArtifactPath = "artifacts/camera.png";
const char* const plotArtifactPath = "artifacts/plot.png";

void saveArtifact(const QImage& image, const char* path)
{
    QVERIFY(QDir().mkpath(QFileInfo(QString::fromLatin1(path)).path()));
    QVERIFY(image.save(QString::fromLatin1(path)));
}

// The scene's floor lies 1 m high under y = 0; this is its middle.
const QPointF floorPoint(0.0, -0.5);

// The first shown text of `area` that does not fit its widget, or of two of its direct
// children that overlap, or that rise above `height`; empty when there is none. A change of
// language lays the widgets out again a little later.
QString layoutFault(QWidget* area, int height = QWIDGETSIZE_MAX)
{
    const QList<QWidget*> children
        = area->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* shown : area->findChildren<QWidget*>()) {
        const QString text = shown->property("text").toString();
        const bool texted = qobject_cast<QLabel*>(shown) || qobject_cast<QAbstractButton*>(shown);
        if (shown->isVisible() && texted && !text.isEmpty()
            && shown->width() < shown->sizeHint().width())
            return QStringLiteral("clipped: ") + text;
    }
    for (QWidget* child : children) {
        if (child->height() > height)
            return QStringLiteral("too high: ") + child->metaObject()->className();
        for (QWidget* other : children) {
            if (other != child && child->isVisible() && other->isVisible()
                && other->geometry().intersects(child->geometry()))
                return QStringLiteral("overlapping: ") + child->metaObject()->className();
        }
    }
    return QString();
}

bool isWhiteOrBlack(QRgb pixel)
{
    const QRgb colour = pixel & RGB_MASK;
    return colour == 0xffffff || colour == 0x000000;
}
} // namespace

// The program as it starts, on a real X server: its first window, with the first scene and
// its ground, as the screen shows it.
class TestMainWindowOnScreen : public QObject
{
    Q_OBJECT

    MainWindow* window() { return Application::instance()->mainWindow; }

    // The window as the X server has it, in window pixels.
    QImage screenshot() { return window()->screen()->grabWindow(window()->winId()).toImage(); }

    // Where a scene point appears in a screenshot of the window.
    QPoint windowPixel(const QPointF& scenePoint)
    {
        GraphicsView* view = window()->graphicsView();
        return view->viewport()->mapTo(window(), view->mapFromScene(scenePoint));
    }

    QRect viewportRect()
    {
        QWidget* viewport = window()->graphicsView()->viewport();
        return QRect(viewport->mapTo(window(), QPoint(0, 0)), viewport->size());
    }

private slots:
    void initTestCase()
    {
        QVERIFY(window());
        QSignalSpy created(Application::instance(), &Application::fileCreated);
        QVERIFY(created.wait(5000));
        QVERIFY(QTest::qWaitForWindowExposed(window()));
    }

    void viewShowsGround()
    {
        const QPoint floor = windowPixel(floorPoint);
        QVERIFY2(viewportRect().contains(floor), "the floor lies outside the view");
        // The first frames may still be on their way to the server.
        QTRY_VERIFY_WITH_TIMEOUT(!isWhiteOrBlack(screenshot().pixel(floor)), 5000);

        const QImage shot = screenshot();
        saveArtifact(shot, artifactPath);
        QCOMPARE(shot.size(), window()->size());

        QSet<QRgb> colours;
        const QRect viewport = viewportRect();
        for (int y = viewport.top(); y <= viewport.bottom(); y += 2) {
            for (int x = viewport.left(); x <= viewport.right(); x += 2)
                colours.insert(shot.pixel(x, y));
        }
        QVERIFY2(colours.size() > 8, qPrintable(QString::number(colours.size())));
    }

    // The editor beside the view, on a selected rectangle: its groups are open, and the brush
    // row shows the rectangle's colour.
    void propertyEditorShowsSelectedRectangle()
    {
        RectangleItem* box = PhysicsWorld::instance()->createRectangle(0, 4, 0, 2, 1);
        box->setBrush(QColor(30, 160, 90));
        box->graphicsItem()->setSelected(true);
        auto* dock = window()->findChild<QDockWidget*>(QStringLiteral("PropertyEditorDockWidget"));
        QVERIFY(dock->isVisible());
        auto* editor = window()->findChild<PropertyEditorWidget*>();
        QVERIFY(editor->isEnabled());
        QAbstractItemModel* model = editor->grid()->model();
        QVERIFY(editor->grid()->isExpanded(model->index(0, 0)));

        const QRect area(dock->mapTo(window(), QPoint(0, 0)), dock->size());
        auto* preview = editor->findChild<QLabel*>(QStringLiteral("brushPreview"));
        const QPoint previewCentre = preview->mapTo(window(), preview->rect().center());
        QTRY_COMPARE_WITH_TIMEOUT(QColor(screenshot().pixel(previewCentre)), QColor(30, 160, 90),
                                  5000);
        saveArtifact(screenshot().copy(area), propertyEditorArtifactPath);
        box->graphicsItem()->setSelected(false);
        PhysicsWorld::instance()->removePhysicsItem(box);
    }

    // A camera window and a plot window over the running scene, as the screen shows them:
    // the camera follows a falling body, the plot draws its speed.
    void cameraAndPlotWindowsFollowTheWorld()
    {
        PhysicsWorld* world = PhysicsWorld::instance();
        RectangleItem* box = world->createRectangle(2, 8, 0, 1, 1);
        box->setBrush(QColor(200, 40, 40));
        Application::instance()->createCamera(box, Brivane::WindowCamera);
        Application::instance()->createPlot(box);
        auto* camera = window()->findChild<CameraGraphicsView*>();
        auto* plot = window()->findChild<PlotWidget*>();
        QVERIFY(QTest::qWaitForWindowExposed(camera) && QTest::qWaitForWindowExposed(plot));
        // Side by side, so that neither hides the other on the screen.
        camera->move(100, 100);
        plot->move(100 + camera->frameGeometry().width() + 20, 100);
        world->start();
        QTRY_VERIFY_WITH_TIMEOUT(plot->speedSamples().size() > 30, 5000);
        world->stop();
        QVERIFY(plot->speedSamples().last().y() > 1.0);
        QCoreApplication::processEvents();
        saveArtifact(camera->screen()->grabWindow(camera->winId()).toImage(), cameraArtifactPath);
        saveArtifact(plot->screen()->grabWindow(plot->winId()).toImage(), plotArtifactPath);
        // The camera keeps the body in its middle.
        QTRY_COMPARE_WITH_TIMEOUT(QColor(camera->screen()
                                             ->grabWindow(camera->winId())
                                             .toImage()
                                             .pixel(camera->rect().center())),
                                  QColor(200, 40, 40), 5000);
        Application::instance()->removeAllCameras();
        plot->close();
        world->removePhysicsItem(box);
    }

    void windowIsMaximisedOnFirstRun()
    {
        QVERIFY(window()->isMaximized());
        QCOMPARE(window()->windowTitle(), QStringLiteral("Brivane"));
    }

    // Switching the viewport while the world runs keeps the scene and the run. Where OpenGL
    // draws in software, as under Xvfb, the view stays with the raster engine and the
    // setting is stored all the same.
    void openGLSwitchKeepsTheScene()
    {
        const bool hardware = !Application::isSoftwareRenderer(Application::openGLRenderer());
        PhysicsWorld* world = PhysicsWorld::instance();
        GraphicsView* view = window()->graphicsView();
        auto* openGL = window()->findChild<QCheckBox*>(QStringLiteral("openGLCheckBox"));
        QVERIFY(openGL->isEnabled());
        const int items = view->scene()->items().size();
        world->start();
        for (bool on : {false, true, false}) {
            openGL->setChecked(on);
            QCOMPARE(qobject_cast<QGLWidget*>(view->viewport()) != nullptr, on && hardware);
            QCOMPARE(Settings::instance()->useOpenGL, on);
            QVERIFY(world->running());
            QCOMPARE(view->scene()->items().size(), items);
        }
        world->stop();
        openGL->setChecked(true);
    }

    // The tests from here on take the window out of its maximised state, to 1280 pixels wide.
    // The main window in another language with both panels open, chosen as the user does in
    // the settings: every text translated and whole.
    void panelsInAnotherLanguage_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("artifact");
        QTest::newRow("German") << int(QLocale::German) << "artifacts/mainwindow-de.png";
        QTest::newRow("Japanese") << int(QLocale::Japanese) << "artifacts/mainwindow-ja.png";
    }
    void panelsInAnotherLanguage()
    {
        QFETCH(int, language);
        QFETCH(QString, artifact);
        window()->showNormal();
        window()->resize(1280, 800);
        auto* settingsDock = window()->findChild<QDockWidget*>("SettingsDockWidget");
        auto* sceneDock = window()->findChild<QDockWidget*>("ScenePropertiesDockWidget");
        settingsDock->setFloating(false);
        window()->addDockWidget(Qt::RightDockWidgetArea, settingsDock);
        settingsDock->show();
        sceneDock->show();
        auto* languages = window()->findChild<QComboBox*>(QStringLiteral("languageComboBox"));
        languages->setCurrentIndex(languages->findData(language));
        QCoreApplication::processEvents();
        QCOMPARE(int(Application::instance()->language()), language);
        auto* tabs = sceneDock->findChild<QTabWidget*>();
        QVERIFY(tabs->tabText(0) != QLatin1String("Physics World"));
        QVERIFY(sceneDock->windowTitle() != QLatin1String("Scene Properties"));
        QTRY_COMPARE(layoutFault(settingsDock), QString());
        QTRY_COMPARE(layoutFault(sceneDock), QString());
        QTest::qWait(200);
        saveArtifact(screenshot(), qPrintable(artifact));
        languages->setCurrentIndex(languages->findData(int(QLocale::English)));
        settingsDock->hide();
        sceneDock->hide();
    }

    void contextStripsFitANarrowWindow_data()
    {
        QTest::addColumn<MainWindow::ActionId>("tool");
        QTest::addColumn<QString>("artifact");
        QTest::newRow("body") << MainWindow::ActionId::Gear << "artifacts/context-gear.png";
        QTest::newRow("joint") << MainWindow::ActionId::RevoluteJoint
                               << "artifacts/context-revolute.png";
        QTest::newRow("chain") << MainWindow::ActionId::Chain << "artifacts/context-chain.png";
        QTest::newRow("text") << MainWindow::ActionId::Text << "artifacts/context-text.png";
        QTest::newRow("image") << MainWindow::ActionId::Image << "artifacts/context-image.png";
        QTest::newRow("spring") << MainWindow::ActionId::SpringForce
                                << "artifacts/context-spring.png";
    }
    void contextStripsFitANarrowWindow()
    {
        QFETCH(MainWindow::ActionId, tool);
        QFETCH(QString, artifact);
        window()->showNormal();
        window()->resize(1280, 800);
        window()->action(tool)->trigger();
        auto* bar = window()->findChild<ActionContextToolBar*>();
        ActionContextWidget* strip
            = qobject_cast<GraphicsViewAction*>(window()->action(tool))->contextWidget;
        QTRY_VERIFY(strip->isVisible() && window()->width() == 1280);
        // Within the bar, not pushed into its overflow menu.
        QVERIFY(QRect(QPoint(0, 0), bar->size())
                    .contains(QRect(strip->mapTo(bar, QPoint(0, 0)), strip->size())));
        QTRY_COMPARE(layoutFault(strip, bar->height()), QString());
        bar->repaint();
        const QImage shot = screenshot();
        saveArtifact(shot.copy(QRect(bar->mapTo(window(), QPoint(0, 0)), bar->size())),
                     qPrintable(artifact));
    }
};

int main(int argc, char* argv[])
{
    // Default settings: no settings file before, so that the first scene gets its ground, and
    // none left behind.
    const QString ini = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()
        + QStringLiteral("/Brivane.ini");
    QFile::remove(ini);
    Application application(argc, argv);
    Settings::instance()->showTipsAtStartup = false;
    application.initialise();
    TestMainWindowOnScreen test;
    const int result = QTest::qExec(&test, argc, argv);
    QFile::remove(ini);
    return result;
}

#include "tst_mainwindow_xvfb.moc"
