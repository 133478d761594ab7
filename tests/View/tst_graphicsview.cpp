#include "Application/Application.h"
#include "Application/Settings.h"
#include "Physics/CircleItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "TestItem.h"
#include "Tools/GraphicsViewAction.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"
#include "View/GridGraphicsItem.h"
#include "View/SnapPointGraphicsItem.h"

#include <QFile>
#include <QFileInfo>
#include <QGraphicsRectItem>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

namespace {
const QSize viewSize(400, 300);
const QRectF emptySceneRect(-10, -8, 20, 16);

// What a tool saw of the events that the view handed to it.
struct ToolEvent
{
    QEvent::Type type;
    Qt::MouseButton button;
    double viewScale; // the view's zoom at the moment the tool got the event
};

// A tool that records every event and counts its resets; Escape reaches the base handler.
class RecordingTool : public GraphicsViewAction
{
public:
    explicit RecordingTool(GraphicsView* view)
        : GraphicsViewAction(QIcon(), QStringLiteral("Recorder"), nullptr, view)
    {
    }

    void reset() override { ++resets; }
    void mousePressEvent(QMouseEvent* event) override { record(event, event->button()); }
    void mouseMoveEvent(QMouseEvent* event) override { record(event, event->button()); }
    void mouseReleaseEvent(QMouseEvent* event) override { record(event, event->button()); }
    void wheelEvent(QWheelEvent* event) override { record(event, Qt::NoButton); }
    void keyPressEvent(QKeyEvent* event) override
    {
        record(event, Qt::NoButton);
        GraphicsViewAction::keyPressEvent(event);
    }

    QList<ToolEvent> events;
    int resets = 0;

private:
    void record(QEvent* event, Qt::MouseButton button)
    {
        events.append({event->type(), button, graphicsView->scale()});
    }
};

bool isDark(QRgb pixel)
{
    return qGray(pixel) < 64;
}

// Whether any pixel of the column x between the rows top and bottom is dark.
bool darkInColumn(const QImage& image, int x, int top, int bottom)
{
    for (int y = top; y <= bottom; ++y) {
        if (isDark(image.pixel(x, y)))
            return true;
    }
    return false;
}

bool near(const QPointF& a, const QPointF& b, double tolerance)
{
    return qAbs(a.x() - b.x()) <= tolerance && qAbs(a.y() - b.y()) <= tolerance;
}
} // namespace

// The view on the world: zoom and its limits, the fit of the scene, the visible rectangle,
// background, camera body, images and the scale indicator, the hit tests and snapping of the
// scene, wheel edits of selected bodies, and how mouse, wheel and key events reach the tool and
// the items' scripts.
class TestGraphicsView : public QObject
{
    Q_OBJECT

    PhysicsWorld* world = nullptr;
    GraphicsView* view = nullptr;

    GraphicsScene* scene() const { return world->graphicsScene(); }

    void sendWheel(int delta, Qt::KeyboardModifiers modifiers)
    {
        const QPointF position(viewSize.width() / 2, viewSize.height() / 2);
        QWheelEvent event(position, view->viewport()->mapToGlobal(position.toPoint()), QPoint(),
                          QPoint(0, delta), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }

    void sendMouse(QEvent::Type type, const QPoint& position, Qt::MouseButton button,
                   Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, position, view->viewport()->mapToGlobal(position), button, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }

private slots:
    void initTestCase()
    {
        Settings::instance()->setUseOpenGL(false);
        Settings::instance()->setGridSize(0.5);
    }
    void init()
    {
        Settings::instance()->setShowScaleIndicator(true);
        world = PhysicsWorld::instance();
        view = new GraphicsView();
        view->resize(viewSize);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view));
    }
    void cleanup()
    {
        delete view;
        view = nullptr;
        PhysicsWorld::destroy();
    }

    void constructionDefaults()
    {
        QCOMPARE(view->scene(), scene());
        QCOMPARE(view->scale(), 48.0);
        QCOMPARE(view->transform().m22(), -48.0);
        QCOMPARE(view->viewportUpdateMode(), QGraphicsView::FullViewportUpdate);
        QCOMPARE(view->transformationAnchor(), QGraphicsView::AnchorUnderMouse);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        const QBrush background = view->property("Background").value<QBrush>();
        QCOMPARE(background.color(), QColor(Qt::white));
        QCOMPARE(background.style(), Qt::SolidPattern);
        QCOMPARE(background.transform(), QTransform(0.05, 0, 0, -0.05, 0, 0));
        QVERIFY(view->bodyWithCamera().isEmpty());
        QVERIFY(!view->currentAction);
        QCOMPARE(view->gridItem()->scene(), scene());
        QVERIFY(!view->gridItem()->isVisible());
        QCOMPARE(view->gridItem()->halfSize(), 200.0);
        QCOMPARE(view->gridItem()->step(), 0.5);
        QCOMPARE(view->snapPointItem()->scene(), scene());
        QVERIFY(!view->snapPointItem()->isVisible());
    }

    void gridFollowsSettings()
    {
        Settings::instance()->setGridSize(1.5);
        view->updateGrid();
        QCOMPARE(view->gridItem()->step(), 1.5);
        QCOMPARE(view->gridItem()->halfSize(), 200.0);
        QCOMPARE(view->gridItem()->snapToGrid(QPointF(0.8, -2.3)), QPointF(1.5, -3.0));
        Settings::instance()->setGridSize(0.5);
    }

    void scaleClamps_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("expected");
        QTest::addColumn<int>("signalCount");
        QTest::newRow("inside the range") << 100.0 << 100.0 << 1;
        QTest::newRow("below the minimum") << 0.5 << 1.0 << 1;
        QTest::newRow("above the maximum") << 2000.0 << 1024.0 << 1;
        QTest::newRow("unchanged") << 48.0 << 48.0 << 0;
        QTest::newRow("infinite") << qInf() << 1024.0 << 1;
        QTest::newRow("not a number") << qQNaN() << 48.0 << 0;
    }
    void scaleClamps()
    {
        QFETCH(double, value);
        QFETCH(double, expected);
        QFETCH(int, signalCount);
        QSignalSpy spy(view, &GraphicsView::scaleChanged);
        QVERIFY(view->setProperty("Scale", value));
        QCOMPARE(view->scale(), expected);
        QCOMPARE(view->property("Scale").toDouble(), expected);
        QCOMPARE(view->transform().m22(), -expected);
        QCOMPARE(spy.count(), signalCount);
        if (signalCount)
            QCOMPARE(spy.first().first().toDouble(), expected);
    }

    void zoomSteps_data()
    {
        QTest::addColumn<double>("start");
        QTest::addColumn<bool>("in");
        QTest::addColumn<double>("expected");
        QTest::addColumn<int>("signalCount");
        const double step = std::pow(2.0, 0.2);
        QTest::newRow("in") << 48.0 << true << 48.0 * step << 1;
        QTest::newRow("out") << 48.0 << false << 48.0 / step << 1;
        QTest::newRow("in near the maximum") << 1000.0 << true << 1024.0 << 1;
        QTest::newRow("in at the maximum") << 1024.0 << true << 1024.0 << 0;
        QTest::newRow("out near the minimum") << 1.1 << false << 1.0 << 1;
        QTest::newRow("out at the minimum") << 1.0 << false << 1.0 << 0;
    }
    void zoomSteps()
    {
        QFETCH(double, start);
        QFETCH(bool, in);
        QFETCH(double, expected);
        QFETCH(int, signalCount);
        view->setScale(start);
        QSignalSpy spy(view, &GraphicsView::scaleChanged);
        if (in)
            view->zoomIn();
        else
            view->zoomOut();
        QVERIFY2(qFuzzyCompare(view->scale(), expected),
                 qPrintable(QString::number(view->scale())));
        QCOMPARE(spy.count(), signalCount);
    }

    void zoomExtentsFitsScene_data()
    {
        QTest::addColumn<bool>("ground");
        QTest::addColumn<QPointF>("farBody");
        QTest::newRow("empty scene") << false << QPointF();
        QTest::newRow("ground") << true << QPointF();
        QTest::newRow("ground and a far body") << true << QPointF(60, 30);
        // Showing 3 km in 400 pixels takes less than the minimum zoom of setScale.
        QTest::newRow("beyond the zoom limit") << true << QPointF(3000, 0);
    }
    void zoomExtentsFitsScene()
    {
        QFETCH(bool, ground);
        QFETCH(QPointF, farBody);
        if (ground)
            world->createGround();
        if (!farBody.isNull())
            world->createCircle(farBody.x(), farBody.y(), 0, 1);
        const QRectF expected = ground ? world->itemsBoundingRect() : emptySceneRect;
        view->setScale(500);
        QSignalSpy spy(view, &GraphicsView::scaleChanged);
        view->zoomExtents();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toDouble(), view->scale());
        const QRectF visible = view->visibleSceneRect();
        QVERIFY(visible.contains(expected));
        // Tight in one direction: no more than the fit's margin of a few pixels around it.
        const double slack = 8.0 / view->scale();
        QVERIFY(visible.width() < expected.width() + slack
                || visible.height() < expected.height() + slack);
    }

    void visibleSceneRect()
    {
        const QRectF wanted(0, 0, 10, 10);
        view->setProperty("VisibleSceneRect", wanted);
        const QRectF visible = view->property("VisibleSceneRect").toRectF();
        QCOMPARE(visible, view->visibleSceneRect());
        QVERIFY(visible.contains(wanted));
        QVERIFY(near(visible.center(), wanted.center(), 1.0 / view->scale()));

        // The rectangle already shown changes nothing; a fit would zoom out by its margin.
        const QTransform before = view->transform();
        view->setVisibleSceneRect(view->visibleSceneRect());
        QCOMPARE(view->transform(), before);
        for (const QRectF& unusable :
             {QRectF(0, 0, qQNaN(), 5), QRectF(0, 0, -4, -3), QRectF(0, 0, qInf(), 2)}) {
            view->setVisibleSceneRect(unusable);
            QCOMPARE(view->transform(), before);
        }
    }

    void background_data()
    {
        QTest::addColumn<QBrush>("brush");
        QTest::addColumn<int>("signalCount");
        QBrush standard(Qt::white, Qt::SolidPattern);
        standard.setTransform(QTransform(0.05, 0, 0, -0.05, 0, 0));
        QBrush moved = standard;
        moved.setTransform(QTransform(0.05, 0, 0, -0.05, 1, 0));
        QTest::newRow("same brush") << standard << 0;
        QTest::newRow("other colour") << QBrush(Qt::red) << 1;
        QTest::newRow("same colour, other transform") << moved << 1;
    }
    void background()
    {
        QFETCH(QBrush, brush);
        QFETCH(int, signalCount);
        QSignalSpy spy(view, &GraphicsView::backgroundChanged);
        QVERIFY(view->setProperty("Background", brush));
        QCOMPARE(spy.count(), signalCount);
        QCOMPARE(view->backgroundBrush(), brush);
        QCOMPARE(view->backgroundBrush().transform(), brush.transform());
    }

    void resetForNewScene()
    {
        const QBrush standard = view->backgroundBrush();
        RectangleItem* body = world->createRectangle(0, 5, 0, 2, 2);
        view->setBackground(QBrush(Qt::red));
        view->setBodyWithCamera(body->name());
        view->setScale(300);
        QSignalSpy camera(view, &GraphicsView::bodyWithCameraChanged);
        QSignalSpy scale(view, &GraphicsView::scaleChanged);
        view->reset();
        QCOMPARE(view->backgroundBrush(), standard);
        QVERIFY(view->bodyWithCamera().isEmpty());
        QCOMPARE(camera.count(), 0);
        QCOMPARE(scale.count(), 1);
        QVERIFY(view->visibleSceneRect().contains(world->itemsBoundingRect()));
    }

    void cameraFollowsNamedBody()
    {
        RectangleItem* body = world->createRectangle(5, 3, 0, 1, 1);
        QSignalSpy spy(view, &GraphicsView::bodyWithCameraChanged);
        QVERIFY(view->setProperty("BodyWithCamera", body->name()));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toString(), body->name());
        QCOMPARE(view->property("BodyWithCamera").toString(), body->name());
        const double pixel = 1.0 / view->scale();
        QVERIFY(near(view->visibleSceneRect().center(), QPointF(5, 3), pixel));

        // The view follows the body when it paints, wherever the body has gone.
        body->setXForm(-4, 6, 0);
        view->viewport()->repaint();
        QVERIFY(near(view->visibleSceneRect().center(), QPointF(-4, 6), pixel));
    }

    void cameraClearedByName_data()
    {
        QTest::addColumn<bool>("cameraFirst");
        QTest::addColumn<QString>("target");
        QTest::newRow("unknown name") << true << QStringLiteral("nothing");
        QTest::newRow("unknown name without camera") << false << QStringLiteral("nothing");
        QTest::newRow("same body again") << true << QStringLiteral("body");
        QTest::newRow("not a body") << true << QStringLiteral("item");
        QTest::newRow("empty name") << true << QString();
    }
    void cameraClearedByName()
    {
        QFETCH(bool, cameraFirst);
        QFETCH(QString, target);
        RectangleItem* body = world->createRectangle(5, 3, 0, 1, 1);
        auto* item = new TestItem();
        world->addPhysicsItem(item);
        if (cameraFirst)
            view->setBodyWithCamera(body->name());
        const QString name = target == QLatin1String("body") ? body->name()
            : target == QLatin1String("item")                ? item->name()
                                                             : target;
        QSignalSpy spy(view, &GraphicsView::bodyWithCameraChanged);
        view->setBodyWithCamera(name);
        QVERIFY(view->bodyWithCamera().isEmpty());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toString(), QString());
    }

    void cameraByPointerIsSilent()
    {
        RectangleItem* body = world->createRectangle(-6, 2, 0, 1, 1);
        QSignalSpy spy(view, &GraphicsView::bodyWithCameraChanged);
        view->setBodyWithCamera(body);
        QCOMPARE(view->bodyWithCamera(), body->name());
        QVERIFY(near(view->visibleSceneRect().center(), QPointF(-6, 2), 1.0 / view->scale()));
        view->setBodyWithCamera(nullptr);
        QVERIFY(view->bodyWithCamera().isEmpty());
        QCOMPARE(spy.count(), 0);
    }

    void deletedCameraBodyIsNoCamera()
    {
        RectangleItem* body = world->createRectangle(5, 3, 0, 1, 1);
        const QString name = body->name();
        view->setBodyWithCamera(name);
        const QRectF before = view->visibleSceneRect();
        world->removeBody(body);
        QVERIFY(view->bodyWithCamera().isEmpty());
        view->viewport()->repaint();
        QCOMPARE(view->visibleSceneRect(), before);
        QVERIFY(!view->image().isNull());
        QSignalSpy spy(view, &GraphicsView::bodyWithCameraChanged);
        view->setBodyWithCamera(name);
        QCOMPARE(spy.count(), 1);
        QVERIFY(view->bodyWithCamera().isEmpty());
    }

    void imageHasRequestedSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("thumbnail") << QSize(160, 120);
        QTest::newRow("square") << QSize(50, 50);
        QTest::newRow("wide strip") << QSize(400, 60);
        QTest::newRow("larger than the view") << QSize(800, 700);
    }
    void imageHasRequestedSize()
    {
        QFETCH(QSize, size);
        QCOMPARE(view->image().size(), view->viewport()->size());
        QCOMPARE(view->image(size).size(), size);
    }

    void imageShowsScene()
    {
        const QRectF visible = view->visibleSceneRect();
        RectangleItem* body = world->createRectangle(visible.center().x(), visible.center().y(), 0,
                                                     visible.width() / 2, visible.height() / 2);
        body->setBrush(QBrush(Qt::black));
        const QImage full = view->image();
        QVERIFY(isDark(full.pixel(full.width() / 2, full.height() / 2)));
        QVERIFY(!isDark(full.pixel(full.width() / 10, full.height() / 10)));
        const QImage thumbnail = view->image(QSize(160, 120));
        QVERIFY(isDark(thumbnail.pixel(80, 60)));
        QVERIFY(!isDark(thumbnail.pixel(10, 10)));
    }

    void scaleIndicator_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("metres");
        QTest::newRow("48 px/m: 5 m") << 48.0 << 5.0;
        QTest::newRow("50 px/m: 5 m") << 50.0 << 5.0;
        QTest::newRow("51 px/m: 2 m") << 51.0 << 2.0;
        QTest::newRow("150 px/m: 1 m") << 150.0 << 1.0;
        QTest::newRow("300 px/m: 0.5 m") << 300.0 << 0.5;
        QTest::newRow("600 px/m: 0.2 m") << 600.0 << 0.2;
        QTest::newRow("25 px/m: 5 m") << 25.0 << 5.0;
        QTest::newRow("3 px/m: 50 m") << 3.0 << 50.0;
        QTest::newRow("1.5 px/m: 100 m") << 1.5 << 100.0;
    }
    void scaleIndicator()
    {
        QFETCH(double, scale);
        QFETCH(double, metres);
        view->setScale(scale);
        const int barEnd = 8 + qRound(metres * scale);
        const QImage image = view->image();
        // The bar lies 8 pixels above the bottom edge and runs from x = 8 to its length.
        const int top = image.height() - 11;
        const int bottom = image.height() - 5;
        QVERIFY(darkInColumn(image, barEnd - 4, top, bottom));
        QVERIFY(!darkInColumn(image, barEnd + 6, top, bottom));

        Settings::instance()->setShowScaleIndicator(false);
        const QImage plain = view->image();
        for (int x = 0; x < barEnd + 10; ++x)
            QVERIFY(!darkInColumn(plain, x, image.height() - 40, image.height() - 1));
    }

    void hitTests()
    {
        RectangleItem* lower = world->createRectangle(0, 0, 0, 4, 4);
        RectangleItem* upper = world->createRectangle(1, 0, 0, 4, 4);
        const QPointF overlap(0.5, 0.5);
        QCOMPARE(scene()->bodyItemsAt(overlap), (QList<BodyItem*> {upper, lower}));
        QCOMPARE(scene()->bodyItemAt(overlap), upper);
        QCOMPARE(scene()->physicsItemAt(overlap), upper);
        QCOMPARE(scene()->bodyItemAt(QPointF(-1.5, 0)), lower);

        QVERIFY(!scene()->bodyItemAt(QPointF(10, 10)));
        QVERIFY(!scene()->physicsItemAt(QPointF(10, 10)));
        QVERIFY(scene()->bodyItemsAt(QPointF(10, 10)).isEmpty());

        // A tool preview above everything belongs to no item and is passed over.
        auto* preview = new QGraphicsRectItem(-10, -10, 20, 20);
        preview->setZValue(100000);
        scene()->addItem(preview);
        QCOMPARE(scene()->bodyItemAt(overlap), upper);
        QCOMPARE(scene()->physicsItemAt(overlap), upper);
        QVERIFY(!scene()->physicsItemAt(QPointF(9, 9)));

        // An item that is not a body hides no body from the body hit tests.
        auto* item = new TestItem();
        world->addPhysicsItem(item);
        item->graphicsItem()->setPos(0, 0);
        item->setZValue(50000);
        QCOMPARE(scene()->physicsItemAt(overlap), item);
        QCOMPARE(scene()->bodyItemAt(overlap), upper);

        // An inactive body is hidden and not hit.
        upper->setActive(false);
        QCOMPARE(scene()->bodyItemAt(overlap), lower);
        delete preview;
    }

    void snapPoint_data()
    {
        QTest::addColumn<QPointF>("probe");
        QTest::addColumn<double>("distance");
        QTest::addColumn<bool>("snaps");
        QTest::addColumn<QPointF>("expected");
        // The circle's centre is at (3, 2); (0.375, 0.5, 0.625) is an exact right triangle.
        QTest::newRow("exactly at the distance")
            << QPointF(3.375, 2.5) << 0.625 << false << QPointF();
        QTest::newRow("just inside") << QPointF(3.375, 2.5) << 0.626 << true << QPointF(3, 2);
        QTest::newRow("nothing near") << QPointF(3, 10) << 0.5 << false << QPointF();
        QTest::newRow("inside a body, far from its points")
            << QPointF(-5, 6) << 0.3 << false << QPointF();
        // The end of the turned rectangle, 0.005 m inside its outline.
        QTest::newRow("end of a turned rectangle")
            << QPointF(-5, 7.2) << 0.3 << true << QPointF(-5, 6.995);
    }
    void snapPoint()
    {
        QFETCH(QPointF, probe);
        QFETCH(double, distance);
        QFETCH(bool, snaps);
        QFETCH(QPointF, expected);
        world->createCircle(3, 2, 0, 2);
        world->createRectangle(-5, 5, M_PI / 2, 4, 1);
        const QPointF untouched(99, 99);
        QPointF snapped = untouched;
        QCOMPARE(scene()->snapPoint(probe, distance, snapped), snaps);
        if (snaps)
            QVERIFY2(near(snapped, expected, 1e-5),
                     qPrintable(QStringLiteral("%1, %2").arg(snapped.x()).arg(snapped.y())));
        else
            QCOMPARE(snapped, untouched);
    }

    void wheel_data()
    {
        QTest::addColumn<int>("delta");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<double>("sizeFactor");
        QTest::addColumn<double>("angle");
        QTest::addColumn<double>("zoomExponent");
        QTest::newRow("zoom in") << 120 << int(Qt::NoModifier) << 1.0 << 0.0 << 0.2;
        QTest::newRow("zoom out") << -120 << int(Qt::NoModifier) << 1.0 << 0.0 << -0.2;
        QTest::newRow("grow") << 120 << int(Qt::ControlModifier) << 1.1 << 0.0 << 0.0;
        QTest::newRow("shrink") << -120 << int(Qt::ControlModifier) << 1 / 1.1 << 0.0 << 0.0;
        QTest::newRow("turn left") << 120 << int(Qt::ShiftModifier) << 1.0 << 4.0 << 0.0;
        QTest::newRow("turn right") << -120 << int(Qt::ShiftModifier) << 1.0 << -4.0 << 0.0;
        QTest::newRow("half notch turn") << 60 << int(Qt::ShiftModifier) << 1.0 << 2.0 << 0.0;
        QTest::newRow("other modifiers")
            << 120 << int(Qt::ControlModifier | Qt::ShiftModifier) << 1.0 << 0.0 << 0.0;
        QTest::newRow("alt") << 120 << int(Qt::AltModifier) << 1.0 << 0.0 << 0.0;
    }
    void wheel()
    {
        QFETCH(int, delta);
        QFETCH(int, modifiers);
        QFETCH(double, sizeFactor);
        QFETCH(double, angle);
        QFETCH(double, zoomExponent);
        RectangleItem* selected = world->createRectangle(1, 2, 0, 2, 1);
        RectangleItem* unselected = world->createRectangle(-3, 2, 0, 2, 1);
        auto* other = new TestItem();
        world->addPhysicsItem(other);
        other->graphicsItem()->setFlag(QGraphicsItem::ItemIsSelectable);
        selected->graphicsItem()->setSelected(true);
        other->graphicsItem()->setSelected(true);
        const double scaleBefore = view->scale();

        sendWheel(delta, Qt::KeyboardModifiers(modifiers));

        QVERIFY(qFuzzyCompare(selected->width(), 2 * sizeFactor));
        QVERIFY(qFuzzyCompare(selected->height(), 1 * sizeFactor));
        QVERIFY2(qAbs(selected->angle() - angle) < 1e-4,
                 qPrintable(QString::number(selected->angle())));
        QCOMPARE(selected->position(), QPointF(1, 2));
        QCOMPARE(selected->graphicsItem()->rotation(), selected->angle());
        QCOMPARE(unselected->width(), 2.0);
        QCOMPARE(unselected->angle(), 0.0);
        QVERIFY(qFuzzyCompare(view->scale(), scaleBefore * std::pow(2.0, zoomExponent)));
    }

    void wheelEditsJointsAndSprings()
    {
        RectangleItem* box = world->createRectangle(0, 5, 0, 1, 1);
        RectangleItem* other = world->createRectangle(3, 5, 0, 1, 1);
        RevoluteJoint* joint = world->createRevoluteJoint(box, nullptr, QPointF(0, 5));
        SpringForce* spring
            = world->createSpringForce(box, other, QPointF(0, 5), QPointF(3, 5), 100.0, 1.0);
        joint->graphicsItem()->setSelected(true);
        spring->graphicsItem()->setSelected(true);
        sendWheel(240, Qt::ControlModifier);
        QCOMPARE(joint->motorSpeed(), 0.5);
        QVERIFY(joint->motorEnabled());
        QCOMPARE(spring->desiredDistance(), 4.0);
        sendWheel(-240, Qt::ControlModifier);
        QCOMPARE(joint->motorSpeed(), 0.0);
        QVERIFY(!joint->motorEnabled());
        QCOMPARE(spring->desiredDistance(), 3.0);
        // Bodies that are not selected keep their size.
        QCOMPARE(box->width(), 1.0);
    }

    void toolGetsMouseEventsAndPanning()
    {
        RecordingTool tool(view);
        view->currentAction = &tool;
        const QPoint start(200, 150);
        const QPointF centreBefore = view->visibleSceneRect().center();

        sendMouse(QEvent::MouseButtonPress, start, Qt::RightButton, Qt::RightButton);
        QCOMPARE(view->dragMode(), QGraphicsView::ScrollHandDrag);
        view->snapPointItem()->show();
        sendMouse(QEvent::MouseMove, start + QPoint(48, 0), Qt::NoButton, Qt::RightButton);
        QVERIFY(!view->snapPointItem()->isVisible());
        // Dragging the scene 48 pixels to the right shows what lies 1 m further left.
        QVERIFY(near(view->visibleSceneRect().center(), centreBefore - QPointF(1, 0), 0.05));
        sendMouse(QEvent::MouseButtonRelease, start + QPoint(48, 0), Qt::RightButton, Qt::NoButton);
        QCOMPARE(view->dragMode(), QGraphicsView::NoDrag);

        sendMouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(view->dragMode(), QGraphicsView::NoDrag);
        sendMouse(QEvent::MouseButtonRelease, start, Qt::LeftButton, Qt::NoButton);

        const QList<QPair<QEvent::Type, Qt::MouseButton>> expected {
            {QEvent::MouseButtonPress, Qt::RightButton},
            {QEvent::MouseMove, Qt::NoButton},
            {QEvent::MouseButtonRelease, Qt::RightButton},
            {QEvent::MouseButtonPress, Qt::LeftButton},
            {QEvent::MouseButtonRelease, Qt::LeftButton}};
        QCOMPARE(tool.events.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(tool.events.at(i).type, expected.at(i).first);
            QCOMPARE(tool.events.at(i).button, expected.at(i).second);
        }
        view->currentAction = nullptr;
    }

    void toolGetsWheelAndKeysFirst()
    {
        RecordingTool tool(view);
        view->currentAction = &tool;
        sendWheel(120, Qt::NoModifier);
        QCOMPARE(tool.events.size(), 1);
        QCOMPARE(tool.events.first().type, QEvent::Wheel);
        QCOMPARE(tool.events.first().viewScale, 48.0);
        QVERIFY(view->scale() > 48.0);

        // Keys go to the tool, never to scrolling.
        const QRectF visible = view->visibleSceneRect();
        QTest::keyClick(view, Qt::Key_Left);
        QTest::keyClick(view, Qt::Key_Escape);
        QCOMPARE(view->visibleSceneRect(), visible);
        QCOMPARE(tool.events.size(), 3);
        QCOMPARE(tool.events.at(1).type, QEvent::KeyPress);
        QCOMPARE(tool.resets, 1);
        view->currentAction = nullptr;
    }

    void passedPressStartsRubberBand()
    {
        view->setDragMode(QGraphicsView::RubberBandDrag);
        const QPoint start(50, 50);
        QMouseEvent press(QEvent::MouseButtonPress, start, view->viewport()->mapToGlobal(start),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        view->passMousePressEvent(&press);
        sendMouse(QEvent::MouseMove, QPoint(150, 120), Qt::NoButton, Qt::LeftButton);
        QVERIFY(!view->rubberBandRect().isEmpty());
        sendMouse(QEvent::MouseButtonRelease, QPoint(150, 120), Qt::LeftButton, Qt::NoButton);
    }

    void eventsWithoutToolOrItems()
    {
        sendMouse(QEvent::MouseButtonPress, QPoint(10, 10), Qt::MiddleButton, Qt::MiddleButton);
        sendMouse(QEvent::MouseMove, QPoint(20, 10), Qt::NoButton, Qt::MiddleButton);
        sendMouse(QEvent::MouseButtonRelease, QPoint(20, 10), Qt::MiddleButton, Qt::NoButton);
        QCOMPARE(view->dragMode(), QGraphicsView::NoDrag);
        sendWheel(120, Qt::ControlModifier);
        sendWheel(120, Qt::ShiftModifier);
        QTest::keyClick(view, Qt::Key_Space);
        QCOMPARE(view->scale(), 48.0);
    }

    void framesPerSecondCountsPaints()
    {
        // The count covers the paints of one whole second: some while repainting, none after.
        QTRY_VERIFY_WITH_TIMEOUT((view->viewport()->repaint(), view->framesPerSecond() > 0), 3000);
        QTRY_COMPARE_WITH_TIMEOUT(view->framesPerSecond(), 0, 3000);
    }

    // Last: the script engine that it sets up keeps a reference to this test's world.
    void keysReachScriptsOfActiveItems()
    {
        Application::instance()->setupScriptEngine();
        const QString onPress = QStringLiteral("this.ZValue = key;");
        RectangleItem* active = world->createRectangle(0, 0, 0, 1, 1);
        active->setOnKeyPress(onPress);
        active->setOnKeyRelease(QStringLiteral("this.Opacity = 0.5;"));
        RectangleItem* inactive = world->createRectangle(2, 0, 0, 1, 1);
        inactive->setOnKeyPress(onPress);
        inactive->setOnKeyRelease(QStringLiteral("this.Opacity = 0.5;"));
        inactive->setActive(false);
        // One script removes an item that comes after it in the list, another removes itself.
        RectangleItem* remover = world->createRectangle(4, 0, 0, 1, 1);
        RectangleItem* removed = world->createRectangle(6, 0, 0, 1, 1);
        removed->setOnKeyPress(onPress);
        remover->setOnKeyPress(QStringLiteral("world.removeBody(%1);").arg(removed->name()));
        RectangleItem* suicidal = world->createRectangle(8, 0, 0, 1, 1);
        suicidal->setOnKeyPress(QStringLiteral("world.removeBody(this);"));
        QVERIFY(!active->onKeyPress().isEmpty());
        QVERIFY(!remover->onKeyPress().isEmpty());
        const double inactiveZ = inactive->zValue();
        QPointer<RectangleItem> removedGuard(removed);
        QPointer<RectangleItem> suicidalGuard(suicidal);

        QTest::keyPress(view, Qt::Key_A);
        QCOMPARE(active->zValue(), double(Qt::Key_A));
        QCOMPARE(inactive->zValue(), inactiveZ);
        QVERIFY(!world->contains(removed));
        QCoreApplication::processEvents(); // items that scripts remove go in the event loop
        QVERIFY(removedGuard.isNull());
        QVERIFY(suicidalGuard.isNull());
        QCOMPARE(active->opacity(), 1.0);

        QTest::keyRelease(view, Qt::Key_A);
        QCOMPARE(active->opacity(), 0.5);
        QCOMPARE(inactive->opacity(), 1.0);
    }
};

int main(int argc, char* argv[])
{
    // The application empties its temporary directory at start: it gets one of its own here,
    // so that tests running at the same time keep theirs.
    QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString settingsFile = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()
        + QStringLiteral("/Brivane.ini");
    QFile::remove(settingsFile);
    int result = 0;
    {
        // The full application object, for the script engine of the key events.
        Application application(argc, argv);
        TestGraphicsView test;
        result = QTest::qExec(&test, argc, argv);
    }
    QFile::remove(settingsFile);
    return result;
}

#include "tst_graphicsview.moc"
