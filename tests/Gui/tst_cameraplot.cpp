#include "Application/Application.h"
#include "Commands/RemoveCommand.h"
#include "Gui/MainWindow.h"
#include "Gui/PlotWidget.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Tools/CameraContextWidget.h"
#include "View/CameraGraphicsView.h"
#include "View/GraphicsView.h"
#include "WindowTestMain.h"

#include <QPointer>
#include <QPushButton>
#include <QUndoStack>

namespace {
Application* application()
{
    return Application::instance();
}

PhysicsWorld* world()
{
    return PhysicsWorld::instance();
}

template<typename Window> QList<Window*> windows()
{
    return application()->mainWindow->findChildren<Window*>();
}

// Lets closed windows go: they are deleted later.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
} // namespace

// Cameras that follow a body, in the main view or a window of their own, and plots of a
// body's speed, with how each ends when its body goes.
class TestCameraPlot : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QTRY_VERIFY(!world()->items().isEmpty()); }

    void init() { application()->newFile(false); }

    void cleanup()
    {
        application()->removeAllCameras();
        for (PlotWidget* plot : windows<PlotWidget>())
            plot->close();
        settle();
    }

    // The window shows the body at 20 pixels per metre, twice its size, within 200 to 800.
    void cameraWindowSize_data()
    {
        QTest::addColumn<QSizeF>("bodySize");
        QTest::addColumn<QSize>("windowSize");
        QTest::newRow("between the bounds") << QSizeF(6, 8) << QSize(240, 320);
        QTest::newRow("small") << QSizeF(2, 1) << QSize(200, 200);
        QTest::newRow("tall") << QSizeF(10, 30) << QSize(400, 800);
    }

    void cameraWindowSize()
    {
        QFETCH(QSizeF, bodySize);
        QFETCH(QSize, windowSize);
        RectangleItem* box = world()->createRectangle(0, 5, 0, bodySize.width(), bodySize.height());
        application()->createCamera(box, Brivane::WindowCamera);
        QCOMPARE(windows<CameraGraphicsView>().size(), 1);
        CameraGraphicsView* camera = windows<CameraGraphicsView>().first();
        // The pen of the outline adds to the body's bounding rectangle.
        QVERIFY(std::abs(camera->width() - windowSize.width()) <= 8);
        QVERIFY(std::abs(camera->height() - windowSize.height()) <= 8);
        QCOMPARE(camera->transform(), QTransform(20, 0, 0, -20, 0, 0));
        QCOMPARE(camera->windowTitle(), QStringLiteral("Camera for %1").arg(box->name()));
    }

    void cameraModes()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        GraphicsView* view = application()->mainWindow->graphicsView();
        application()->createCamera(box, Brivane::CameraMode(2));
        QVERIFY(windows<CameraGraphicsView>().isEmpty());
        QVERIFY(view->bodyWithCamera().isEmpty());
        application()->createCamera(box, Brivane::MainViewCamera);
        QCOMPARE(view->bodyWithCamera(), box->name());
        application()->createCamera(box, Brivane::WindowCamera);
        application()->createCamera(box, Brivane::WindowCamera);
        QCOMPARE(windows<CameraGraphicsView>().size(), 2);
        // As the camera tool's strip does it.
        CameraContextWidget strip;
        strip.findChild<QPushButton*>()->click();
        settle();
        QVERIFY(windows<CameraGraphicsView>().isEmpty());
        QVERIFY(view->bodyWithCamera().isEmpty());
    }

    // A removed body closes its window at the window's next paint; undo brings the body
    // back, and no window.
    void removedBodyClosesItsCamera()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        application()->createCamera(box, Brivane::WindowCamera);
        QPointer<CameraGraphicsView> camera = windows<CameraGraphicsView>().first();
        QVERIFY(QTest::qWaitForWindowExposed(camera));
        application()->undoStack->push(new RemoveCommand(QRectF(QPointF(0, 5), QSizeF())));
        QVERIFY(camera);
        camera->viewport()->repaint();
        settle();
        QVERIFY(!camera);
        application()->undoStack->undo();
        QVERIFY(box->isActive());
        QVERIFY(windows<CameraGraphicsView>().isEmpty());
    }

    // The first sample's change is the speed itself; a body at rest plots zeros; two plots of
    // one body keep samples of their own; a body that goes closes its plots at the next step.
    void plots()
    {
        RectangleItem* moving = world()->createRectangle(0, 50, 0, 1, 1);
        RectangleItem* resting = world()->createRectangle(5, 5, 0, 1, 1);
        resting->setBodyType(BodyItem::StaticBody);
        moving->setLinearVelocity(3.0, 4.0);
        application()->createPlot(moving);
        application()->createPlot(moving);
        application()->createPlot(resting);
        const QList<PlotWidget*> plots = windows<PlotWidget>();
        QCOMPARE(plots.size(), 3);
        world()->step();
        world()->step();
        PlotWidget* first = plots.at(0);
        QCOMPARE(first->speedSamples().size(), 2);
        const double speed = first->speedSamples().first().y();
        QVERIFY(std::abs(speed - 5.0) < 0.2);
        QCOMPARE(first->accelerationSamples().first().y(), speed);
        QVERIFY(std::abs(first->accelerationSamples().last().y()
                         - (first->speedSamples().last().y() - speed))
                < 1e-9);
        QCOMPARE(plots.at(1)->speedSamples(), first->speedSamples());
        for (const QPointF& sample :
             plots.at(2)->speedSamples() + plots.at(2)->accelerationSamples())
            QCOMPARE(sample.y(), 0.0);

        QPointer<PlotWidget> guard = first;
        world()->removePhysicsItem(moving);
        settle();
        QVERIFY(guard);
        world()->step();
        settle();
        QVERIFY(!guard);
        QCOMPARE(windows<PlotWidget>().size(), 1);
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestCameraPlot, true)

#include "tst_cameraplot.moc"
