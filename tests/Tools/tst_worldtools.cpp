#include "Commands/RemoveCommand.h"
#include "Physics/DistanceJoint.h"
#include "Physics/RectangleItem.h"
#include "ToolFixture.h"
#include "View/VectorGraphicsItem.h"
#include "WindowTestMain.h"

#include <QRubberBand>

using Id = MainWindow::ActionId;

// The tools that act on what is in the scene: remove, explode and the gun, with the mouse.
class TestWorldTools : public QObject, private ToolFixture
{
    Q_OBJECT

    QString topText() const { return stack()->text(stack()->count() - 1); }

private slots:
    void initTestCase() { QVERIFY(waitForFirstScene()); }

    void init()
    {
        newEmptyScene();
        snapNowhere();
    }

    // A click takes the item under it, or nothing; a band takes what it touches, with the
    // joints of the bodies among it wherever they lie, and a joint alone leaves its bodies.
    void remove_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QStringList>("removed");
        QTest::newRow("click on nothing") << QPointF(0, 8) << QPointF(0, 8) << QStringList();
        QTest::newRow("click on a body")
            << QPointF(-3, 2) << QPointF(-3, 2) << QStringList({"left", "joint"});
        QTest::newRow("band across a body")
            << QPointF(-4, 1) << QPointF(-2.5, 3) << QStringList({"left", "joint"});
        QTest::newRow("band over the joint")
            << QPointF(-0.5, 1.5) << QPointF(0.5, 2.5) << QStringList({"joint"});
    }

    void remove()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QStringList, removed);
        RectangleItem* left = world()->createRectangle(-3, 2, 0, 1, 1);
        RectangleItem* right = world()->createRectangle(3, 2, 0, 1, 1);
        DistanceJoint* joint
            = world()->createDistanceJoint(left, right, QPointF(-3, 1.7), QPointF(3, 1.7));
        const QHash<QString, PhysicsItem*> items = {{QStringLiteral("left"), left},
                                                    {QStringLiteral("right"), right},
                                                    {QStringLiteral("joint"), joint}};
        selectTool(Id::Remove);
        gestures().drag(from, to);
        QVERIFY(!view()->findChild<QRubberBand*>()->isVisible());
        QCOMPARE(topText(), QStringLiteral("Remove"));
        for (auto it = items.constBegin(); it != items.constEnd(); ++it)
            QVERIFY2(it.value()->isActive() != removed.contains(it.key()), qPrintable(it.key()));
    }

    void explodeClick()
    {
        Settings::instance()->setExplodeMethod(2);
        Settings::instance()->setExplodeSize(0.5);
        RectangleItem* box = world()->createRectangle(0, 2, 0, 2, 1);
        selectTool(Id::Explode);
        const int count = stack()->count();
        gestures().click(QPointF(4, 8));
        QCOMPARE(stack()->count(), count);
        gestures().click(QPointF(0, 2));
        QCOMPARE(topText(), QStringLiteral("Squarify"));
        QVERIFY(!box->isActive());
        QVERIFY(world()->activeItems().size() > 4);
    }

    // Dragged one metre away from where the body is to fly, it gains 5 m/s that way and moves
    // once the world runs; a click without a drag makes a bullet that gains nothing.
    void gun_data()
    {
        QTest::addColumn<QPointF>("release");
        QTest::newRow("one metre to the left") << QPointF(-1, 0);
        QTest::newRow("no drag") << QPointF(0, 0);
    }

    void gun()
    {
        QFETCH(QPointF, release);
        RectangleItem* box = world()->createRectangle(0, 2, 0, 1, 1);
        selectTool(Id::Gun);
        const ViewGestures mouse = gestures();
        const QPointF press = mouse.onPixel(QPointF(0, 2));
        mouse.press(press);
        mouse.move(press + release, Qt::LeftButton);
        QCOMPARE(shownPreviews().size(), 1);
        mouse.release(press + release);
        QCOMPARE(topText(), QStringLiteral("Linear Impulse"));
        QVERIFY(box->isBullet());
        // 5 m/s per metre of the drag as the pixels give it.
        const double dragged = QLineF(press, mouse.onPixel(press + release)).length();
        QVERIFY(near(box->linearVelocityX(), 5.0 * dragged, 1e-3));
        QVERIFY(shownPreviews().isEmpty());
        // A paused world holds the body where it is until it runs.
        QCOMPARE(box->positionX(), 0.0);
        for (int step = 0; step < 6; ++step)
            world()->step();
        QVERIFY(near(box->positionX(), 5.0 * dragged * 0.1, 0.02));
    }

    void gunPressOffBodiesShowsNothing()
    {
        world()->createRectangle(0, 2, 0, 1, 1);
        selectTool(Id::Gun);
        const int count = stack()->count();
        gestures().drag(QPointF(5, 8), QPointF(6, 8));
        QVERIFY(shownPreviews().isEmpty());
        QCOMPARE(stack()->count(), count);
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestWorldTools, true)
#include "tst_worldtools.moc"
