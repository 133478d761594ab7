#include "Application/Application.h"
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
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QGraphicsItem>
#include <QLabel>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
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

    // Runs last: it takes the window out of its maximised state.
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
        QList<QWidget*> controls;
        for (QWidget* control :
             strip->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            controls.append(control);
        for (QWidget* control : controls) {
            const QString name = QString::fromLatin1(control->metaObject()->className());
            // Labels and buttons show their whole text.
            if (qobject_cast<QLabel*>(control) || qobject_cast<QAbstractButton*>(control))
                QVERIFY2(control->width() >= control->sizeHint().width(), qPrintable(name));
            QVERIFY2(control->height() <= bar->height(), qPrintable(name));
            for (QWidget* other : controls) {
                QVERIFY2(other == control || !other->geometry().intersects(control->geometry()),
                         qPrintable(name));
            }
        }
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
    application.initialise();
    TestMainWindowOnScreen test;
    const int result = QTest::qExec(&test, argc, argv);
    QFile::remove(ini);
    return result;
}

#include "tst_mainwindow_xvfb.moc"
