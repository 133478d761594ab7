#include "ApplicationTestMain.h"
#include "Gui/MainWindow.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Tools/GraphicsViewAction.h"
#include "Tools/SelectAction.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"
#include "View/SnapPointGraphicsItem.h"

#include <QMouseEvent>
#include <QUndoStack>

// A tool that records what the view hands it.
class RecordingAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    RecordingAction(GraphicsView* view)
        : GraphicsViewAction(QIcon(QStringLiteral(":/icons/rectangle.png")),
                             QStringLiteral("Record"), nullptr, view)
    {
    }
    int resets = 0;

public slots:
    void reset() override { ++resets; }
};

// Snapping, the composite cursor, Escape, and the select tool's mouse joint and rubber band.
class TestToolFramework : public QObject
{
    Q_OBJECT

    GraphicsView* view = nullptr;
    Settings* settings() { return Settings::instance(); }
    QPoint viewportPoint(const QPointF& scenePoint) { return view->mapFromScene(scenePoint); }

    void sendMouse(QEvent::Type type, const QPointF& scenePoint, Qt::MouseButton button,
                   Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, viewportPoint(scenePoint), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
    }

private slots:
    void initTestCase()
    {
        Settings::instance()->showTipsAtStartup = false;
        Application::instance()->initialise();
        view = Application::instance()->mainWindow->graphicsView();
        view->resize(800, 600);
        view->setScale(48.0);
        view->centerOn(0, 0);
    }
    void init()
    {
        Application::instance()->newFile();
        view->setScale(48.0);
        view->centerOn(0, 0);
        settings()->setSnapToGrid(false);
        settings()->setSnapToObjects(true);
        settings()->setMaxObjectSnapDistance(0.2);
        settings()->setGridSize(0.5);
        view->updateGrid();
    }

    void gridSnappingAlwaysSnapsAndShowsMarker()
    {
        settings()->setSnapToGrid(true);
        RecordingAction tool(view);
        const QPointF snapped = tool.snappedScenePos(viewportPoint(QPointF(1.3, 2.2)));
        QCOMPARE(snapped, QPointF(1.5, 2.0));
        QVERIFY(view->snapPointItem()->isVisible());
        QCOMPARE(view->snapPointItem()->pos(), QPointF(1.5, 2.0));
    }

    void objectSnappingIsStrict()
    {
        RectangleItem* box = PhysicsWorld::instance()->createRectangle(0, 0, 0, 2, 2);
        QVERIFY(box);
        RecordingAction tool(view);
        view->snapPointItem()->hide();
        // Far from every snap point: the raw point, and the marker stays hidden.
        const QPoint far = viewportPoint(QPointF(5, 5));
        QCOMPARE(tool.snappedScenePos(far), view->mapToScene(far));
        QVERIFY(!view->snapPointItem()->isVisible());
        // Near the centre: the centre.
        const QPointF nearCentre = tool.snappedScenePos(viewportPoint(QPointF(0.1, 0.05)));
        QCOMPARE(nearCentre, QPointF(0, 0));
        QVERIFY(view->snapPointItem()->isVisible());
    }

    void noSnappingGivesTheMappedPoint()
    {
        settings()->setSnapToObjects(false);
        PhysicsWorld::instance()->createRectangle(0, 0, 0, 2, 2);
        RecordingAction tool(view);
        const QPoint point = viewportPoint(QPointF(0.1, 0.05));
        QCOMPARE(tool.snappedScenePos(point), view->mapToScene(point));
    }

    void escapeResetsTheTool()
    {
        RecordingAction tool(view);
        GraphicsViewAction* previous = view->currentAction;
        view->currentAction = &tool;
        QTest::keyClick(view->viewport(), Qt::Key_Escape);
        QTest::keyClick(view->viewport(), Qt::Key_A);
        QCOMPARE(tool.resets, 1);
        view->currentAction = previous;
    }

    void compositeCursorCarriesTheIcon()
    {
        RecordingAction tool(view);
        tool.trigger();
        const QPixmap cursor = view->cursor().pixmap();
        QCOMPARE(cursor.size(), QSize(32, 32));
        // The tool's icon sits at (12, 0): something is painted there.
        const QImage image = cursor.toImage();
        bool painted = false;
        for (int x = 12; x < 32 && !painted; ++x) {
            for (int y = 0; y < 20 && !painted; ++y)
                painted = qAlpha(image.pixel(x, y)) > 0;
        }
        QVERIFY(painted);
    }

    void selectToolDragsWithMouseJoint()
    {
        PhysicsWorld* world = PhysicsWorld::instance();
        world->setGravityY(0.0);
        RectangleItem* box = world->createRectangle(0, 0, 0, 2, 2);
        SelectAction* select = qobject_cast<SelectAction*>(view->currentAction);
        QVERIFY(select);
        // Grabbed at its centre, so the pull turns it not.
        sendMouse(QEvent::MouseButtonPress, QPointF(0, 0), Qt::LeftButton, Qt::LeftButton);
        QVERIFY(world->mouseJoint());
        QCOMPARE(view->cursor().shape(), Qt::ClosedHandCursor);
        sendMouse(QEvent::MouseMove, QPointF(2, 0), Qt::NoButton, Qt::LeftButton);
        for (int i = 0; i < 120; ++i)
            world->step();
        QVERIFY2(qAbs(box->positionX() - 2.0) < 0.1, qPrintable(QString::number(box->positionX())));
        sendMouse(QEvent::MouseButtonRelease, QPointF(2, 0), Qt::LeftButton, Qt::NoButton);
        QVERIFY(!world->mouseJoint());
        QCOMPARE(view->cursor().shape(), Qt::ArrowCursor);
        world->setGravityY(-10.0);
    }

    void selectToolOnStaticBodyMakesNoJoint()
    {
        PhysicsWorld* world = PhysicsWorld::instance();
        RectangleItem* wall = world->createRectangle(0, 0, 0, 2, 2);
        wall->setBodyType(BodyItem::StaticBody);
        sendMouse(QEvent::MouseButtonPress, QPointF(0, 0), Qt::LeftButton, Qt::LeftButton);
        QVERIFY(!world->mouseJoint());
        sendMouse(QEvent::MouseButtonRelease, QPointF(0, 0), Qt::LeftButton, Qt::NoButton);
        QCOMPARE(view->dragMode(), QGraphicsView::NoDrag);
    }

    void selectToolRubberBandSelects()
    {
        PhysicsWorld* world = PhysicsWorld::instance();
        RectangleItem* first = world->createRectangle(1, 1, 0, 0.5, 0.5);
        RectangleItem* second = world->createRectangle(2, 1, 0, 0.5, 0.5);
        RectangleItem* outside = world->createRectangle(6, 6, 0, 0.5, 0.5);
        world->deselectAll();
        sendMouse(QEvent::MouseButtonPress, QPointF(0, 2), Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(view->dragMode(), QGraphicsView::RubberBandDrag);
        sendMouse(QEvent::MouseMove, QPointF(1.5, 1.5), Qt::NoButton, Qt::LeftButton);
        sendMouse(QEvent::MouseMove, QPointF(3, 0), Qt::NoButton, Qt::LeftButton);
        sendMouse(QEvent::MouseButtonRelease, QPointF(3, 0), Qt::LeftButton, Qt::NoButton);
        QVERIFY(first->graphicsItem()->isSelected());
        QVERIFY(second->graphicsItem()->isSelected());
        QVERIFY(!outside->graphicsItem()->isSelected());
        QCOMPARE(view->dragMode(), QGraphicsView::NoDrag);
    }

    void draggedBodyDeletedByScriptIsDropped()
    {
        PhysicsWorld* world = PhysicsWorld::instance();
        RectangleItem* box = world->createRectangle(0, 0, 0, 2, 2);
        sendMouse(QEvent::MouseButtonPress, QPointF(0, 0), Qt::LeftButton, Qt::LeftButton);
        QVERIFY(world->mouseJoint());
        world->removeBody(box);
        sendMouse(QEvent::MouseMove, QPointF(1, 1), Qt::NoButton, Qt::LeftButton);
        sendMouse(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton);
        QVERIFY(!world->mouseJoint());
        QCOMPARE(world->jointCount(), 0);
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestToolFramework)
#include "tst_toolframework.moc"
