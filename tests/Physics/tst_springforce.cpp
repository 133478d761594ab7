#include "Application/Settings.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Physics/SpringForce.h"
#include "View/GraphicsScene.h"
#include "View/SpringGraphicsItem.h"

#include <QFile>
#include <QGraphicsView>
#include <QPen>
#include <QPointer>
#include <QTest>
#include <cmath>

// The spring: Hooke's law with damping between two anchors, applied after each step for the
// next one, waking the bodies it holds, and safe against bodies that go away and values that
// are not finite.
class TestSpringForce : public QObject
{
    Q_OBJECT

    PhysicsWorld* world = nullptr;

    // A 1 m box of mass 1 kg without damping, so that a force shows as it is.
    RectangleItem* addBox(double x, double y)
    {
        RectangleItem* box = world->createRectangle(x, y, 0, 1, 1);
        box->setLinearDamping(0.0);
        box->setAngularDamping(0.0);
        return box;
    }

    SpringForce* addSpring(BodyItem* first, BodyItem* second, const QPointF& p1, const QPointF& p2,
                           double k, double damping)
    {
        auto* spring = new SpringForce(first, second, p1, p2, k, damping);
        world->addPhysicsItem(spring);
        return spring;
    }

    static bool isFinite(BodyItem* body)
    {
        return std::isfinite(body->positionX()) && std::isfinite(body->positionY())
            && std::isfinite(body->angle());
    }

private slots:
    void initTestCase()
    {
        QFile::remove(Settings::settingsFileName());
        Settings::instance();
    }
    void init()
    {
        world = PhysicsWorld::instance();
        world->setGravityY(0.0);
    }
    void cleanup() { PhysicsWorld::destroy(); }
    void cleanupTestCase()
    {
        Settings::destroy();
        QFile::remove(Settings::settingsFileName());
    }

    void declaredProperties()
    {
        SpringForce* spring
            = addSpring(addBox(0, 0), addBox(2, 0), QPointF(0, 0), QPointF(2, 0), 500, 5);
        const QMetaObject* meta = spring->metaObject();
        const QStringList expected {"BodyItem1Name", "BodyItem2Name",   "Anchor1", "Anchor2", "k",
                                    "Damping",       "DesiredDistance", "Color"};
        QCOMPARE(meta->propertyCount() - meta->propertyOffset(), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            const QMetaProperty property = meta->property(meta->propertyOffset() + i);
            QCOMPARE(QString::fromLatin1(property.name()), expected.at(i));
            QVERIFY(property.isUser());
            QCOMPARE(property.isWritable(), i >= 4);
        }
        QCOMPARE(
            QString::fromLatin1(meta->classInfo(meta->indexOfClassInfo("SpringForce")).value()),
            QStringLiteral("Spring Force"));
        QCOMPARE(QString::fromLatin1(meta->classInfo(meta->indexOfClassInfo("ForceItem")).value()),
                 QStringLiteral("Force"));
        QCOMPARE(spring->type(), int(PhysicsItem::SpringForceType));
    }

    void creation()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(3, 4);
        first->setZValue(7.0);
        SpringForce* spring = addSpring(first, second, QPointF(0.25, 0), QPointF(3, 4.25), 500, 5);
        QCOMPARE(spring->bodyItems(), QList<BodyItem*>() << first << second);
        QCOMPARE(spring->property("BodyItem1Name").toString(), first->name());
        QCOMPARE(spring->property("BodyItem2Name").toString(), second->name());
        QCOMPARE(spring->desiredDistance(), QLineF(0.25, 0, 3, 4.25).length());
        QCOMPARE(spring->anchor1(), QStringLiteral("0.25,0"));
        QCOMPARE(spring->anchor2(), QStringLiteral("3,4.25"));
        QCOMPARE(spring->snapPoints(), QPolygonF() << QPointF(0.25, 0) << QPointF(3, 4.25));
        QCOMPARE(spring->zValue(), 8.0);
        QVERIFY(spring->graphicsItem()->flags() & QGraphicsItem::ItemIsSelectable);
        auto* zigzag = static_cast<SpringGraphicsItem*>(spring->graphicsItem());
        QCOMPARE(zigzag->restLength(), spring->desiredDistance());
        // A later change of a body's Z value does not move the spring.
        second->setZValue(20.0);
        QCOMPARE(spring->zValue(), 8.0);
    }

    void anchorsFollowTheirBodies()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        SpringForce* spring = addSpring(first, second, QPointF(0.5, 0), QPointF(2, 0), 500, 5);
        first->setXForm(12.3456789, 1.0, M_PI / 2);
        QCOMPARE(spring->anchor1(), QStringLiteral("12.3457,1.5"));
        QCOMPARE(spring->property("Anchor2").toString(), QStringLiteral("2,0"));
    }

    // The coil is laid out anew only when an end has moved by more than a pixel of the view
    // that shows it largest, or of a new view where none does.
    void coilFollowsMovesOfMoreThanAPixel_data()
    {
        QTest::addColumn<double>("move");
        QTest::addColumn<double>("pixelsPerMetre");
        QTest::addColumn<bool>("follows");
        QTest::newRow("under a pixel, no view") << 0.01 << 0.0 << false;
        QTest::newRow("over a pixel, no view") << 0.05 << 0.0 << true;
        QTest::newRow("under a pixel, zoomed in") << 0.001 << 400.0 << false;
        QTest::newRow("over a pixel, zoomed in") << 0.01 << 400.0 << true;
    }
    void coilFollowsMovesOfMoreThanAPixel()
    {
        QFETCH(double, move);
        QFETCH(double, pixelsPerMetre);
        QFETCH(bool, follows);
        QGraphicsView view(pixelsPerMetre > 0.0 ? world->graphicsScene() : nullptr);
        view.setTransform(QTransform::fromScale(pixelsPerMetre, -pixelsPerMetre));
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        SpringForce* spring = addSpring(first, second, QPointF(0, 0), QPointF(2, 0), 1, 0);
        auto* coil = static_cast<SpringGraphicsItem*>(spring->graphicsItem());
        second->setXForm(2.0 + move, 0.0, 0.0);
        spring->update();
        // Box2D keeps positions in float.
        QCOMPARE(qAbs(coil->line().p2().x() - (2.0 + move)) < 1e-6, follows);
    }

    // After one update the next step carries the force F = -k (stretch) - damping (speed)
    // along the line from the first anchor to the second, on the second body, and -F on the
    // first: with 1 kg and no damping each velocity changes by F times the step.
    void forceFollowsHookeAndDamping_data()
    {
        QTest::addColumn<double>("k");
        QTest::addColumn<double>("damping");
        QTest::addColumn<double>("stretch");
        QTest::addColumn<double>("speed");
        QTest::addColumn<double>("force");
        QTest::newRow("at rest, still") << 500.0 << 5.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("at rest, moving apart: damping only") << 500.0 << 5.0 << 0.0 << 1.0 << -5.0;
        QTest::newRow("at rest, closing: damping only") << 500.0 << 5.0 << 0.0 << -2.0 << 10.0;
        QTest::newRow("stretched") << 500.0 << 5.0 << 0.1 << 0.0 << -50.0;
        QTest::newRow("compressed") << 500.0 << 5.0 << -0.1 << 0.0 << 50.0;
        QTest::newRow("stretched and moving apart") << 500.0 << 5.0 << 0.1 << 1.0 << -55.0;
        QTest::newRow("negative k repels") << -100.0 << 0.0 << 0.1 << 0.0 << 10.0;
    }
    void forceFollowsHookeAndDamping()
    {
        QFETCH(double, k);
        QFETCH(double, damping);
        QFETCH(double, stretch);
        QFETCH(double, speed);
        QFETCH(double, force);
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        SpringForce* spring = addSpring(first, second, QPointF(0, 0), QPointF(2, 0), k, damping);
        second->setXForm(2.0 + stretch, 0, 0);
        second->setLinearVelocity(speed, 0);
        spring->update();
        world->step();
        const double h = world->timeStep();
        QVERIFY2(qAbs((second->linearVelocityX() - speed) / h - force) < 1e-3,
                 qPrintable(QString::number(second->linearVelocityX())));
        QVERIFY(qAbs(first->linearVelocityX() / h + force) < 1e-3);
        QCOMPARE(first->linearVelocityY(), 0.0);
        QCOMPARE(second->angularVelocity(), 0.0);
    }

    // Anchors half a metre above both centres, stretched by 1 m: a pull of 100 N along the
    // line of the anchors turns the second body counter-clockwise and the first clockwise,
    // 50 N·m each, on a moment of inertia of 1/6 kg·m².
    void offCentreAnchorsTurnTheBodies()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        SpringForce* spring = addSpring(first, second, QPointF(0, 0.5), QPointF(2, 0.5), 100, 0);
        second->setXForm(3, 0, 0);
        spring->update();
        world->step();
        const double turn = 50.0 * 6.0 * world->timeStep();
        QVERIFY(qAbs(second->angularVelocity() - turn) < 1e-4);
        QVERIFY(qAbs(first->angularVelocity() + turn) < 1e-4);
    }

    void pullsDynamicBodyTowardStaticOne()
    {
        RectangleItem* wall = addBox(0, 10);
        wall->setBodyType(BodyItem::StaticBody);
        RectangleItem* box = addBox(0, 5);
        addSpring(wall, box, QPointF(0, 10), QPointF(0, 5), 100, 1);
        box->setXForm(0, 4, 0);
        for (int i = 0; i < 10; ++i)
            world->step();
        QVERIFY(box->positionY() > 4.1);
        QVERIFY(box->linearVelocityY() > 0.0);
    }

    void dampingTakesEnergyOut_data()
    {
        QTest::addColumn<double>("damping");
        QTest::addColumn<double>("minimumRatio");
        QTest::addColumn<double>("maximumRatio");
        QTest::newRow("undamped keeps its swing") << 0.0 << 0.95 << 1.05;
        QTest::newRow("damped dies down") << 2.0 << 0.0 << 0.2;
    }
    void dampingTakesEnergyOut()
    {
        QFETCH(double, damping);
        QFETCH(double, minimumRatio);
        QFETCH(double, maximumRatio);
        RectangleItem* wall = addBox(0, 0);
        wall->setBodyType(BodyItem::StaticBody);
        RectangleItem* box = addBox(3, 0);
        addSpring(wall, box, QPointF(0, 0), QPointF(3, 0), 100, damping);
        box->setXForm(3.5, 0, 0);
        // A period is 2 pi sqrt(m / k), about 38 steps: compare the swing over the first and
        // the fifth second.
        auto swing = [&]() {
            double largest = 0.0;
            for (int i = 0; i < 60; ++i) {
                world->step();
                largest = qMax(largest, qAbs(box->positionX() - 3.0));
            }
            return largest;
        };
        const double first = swing();
        for (int i = 0; i < 3; ++i)
            swing();
        const double ratio = swing() / first;
        QVERIFY2(ratio >= minimumRatio && ratio <= maximumRatio,
                 qPrintable(QString::number(ratio)));
    }

    void keepsBothBodiesAwake()
    {
        world->setGravityY(-10.0);
        world->createGround();
        RectangleItem* first = addBox(-2, 0.5);
        RectangleItem* second = addBox(2, 0.5);
        RectangleItem* alone = addBox(6, 0.5);
        addSpring(first, second, QPointF(-2, 0.5), QPointF(2, 0.5), 500, 5);
        for (int i = 0; i < 300; ++i)
            world->step();
        QVERIFY(!alone->body()->IsAwake());
        QVERIFY(first->body()->IsAwake());
        QVERIFY(second->body()->IsAwake());
    }

    void inactiveSpringLetsGo()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        SpringForce* spring = addSpring(first, second, QPointF(0, 0), QPointF(2, 0), 500, 5);
        second->setXForm(3, 0, 0);
        spring->setActive(false);
        QVERIFY(!spring->isActive());
        QVERIFY(!spring->graphicsItem()->isVisible());
        for (int i = 0; i < 5; ++i)
            world->step();
        QCOMPARE(first->linearVelocityX(), 0.0);
        QCOMPARE(second->positionX(), 3.0);
        spring->setActive(true);
        QVERIFY(spring->graphicsItem()->isVisible());
        world->step();
        world->step();
        QVERIFY(second->positionX() < 3.0);
    }

    void settersAndLook()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        SpringForce* spring = addSpring(first, second, QPointF(0, 0), QPointF(2, 0), 500, 5);
        spring->setProperty("k", 100.0);
        spring->setProperty("Damping", 0.0);
        spring->setK(qQNaN());
        spring->setDamping(qInf());
        spring->setDesiredDistance(qQNaN());
        QCOMPARE(spring->k(), 100.0);
        QCOMPARE(spring->damping(), 0.0);
        QCOMPARE(spring->desiredDistance(), 2.0);

        // A new rest length acts at once: the update it calls adds its force for the next step.
        spring->setDesiredDistance(1.0);
        auto* zigzag = static_cast<SpringGraphicsItem*>(spring->graphicsItem());
        QCOMPARE(zigzag->restLength(), 1.0);
        world->step();
        QVERIFY(qAbs(second->linearVelocityX() / world->timeStep() + 100.0) < 1e-3);

        spring->setColor(QColor(Qt::red));
        QCOMPARE(spring->property("Color").value<QColor>(), QColor(Qt::red));
        QCOMPARE(zigzag->pen().color(), QColor(Qt::red));
    }

    void anchorsInOnePlaceDoNotPushApart()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(0, 0);
        second->setFilterMasks(QStringLiteral("B"));
        SpringForce* spring = addSpring(first, second, QPointF(0, 0), QPointF(0, 0), 500, 5);
        spring->setDesiredDistance(1.0);
        for (int i = 0; i < 10; ++i)
            world->step();
        QCOMPARE(second->positionX(), 0.0);
        QCOMPARE(first->positionX(), 0.0);
    }

    // None of these may reach Box2D, whose solver asserts on values that are not finite.
    void valuesThatAreNotFiniteStayAway_data()
    {
        QTest::addColumn<QPointF>("anchor");
        QTest::addColumn<double>("k");
        QTest::addColumn<double>("damping");
        QTest::newRow("anchor not a number") << QPointF(qQNaN(), 0) << 500.0 << 5.0;
        QTest::newRow("anchor infinite") << QPointF(0, qInf()) << 500.0 << 5.0;
        QTest::newRow("k not a number") << QPointF(2, 0) << qQNaN() << 5.0;
        QTest::newRow("damping infinite") << QPointF(2, 0) << 500.0 << -qInf();
        QTest::newRow("force beyond single precision") << QPointF(2, 0) << 1e300 << 5.0;
    }
    void valuesThatAreNotFiniteStayAway()
    {
        QFETCH(QPointF, anchor);
        QFETCH(double, k);
        QFETCH(double, damping);
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        addSpring(first, second, QPointF(0, 0), anchor, k, damping);
        second->setXForm(2.5, 0, 0);
        second->setLinearVelocity(1.0, 0.0);
        for (int i = 0; i < 10; ++i)
            world->step();
        QVERIFY(isFinite(first));
        QVERIFY(isFinite(second));
    }

    void nullBodyMakesAnInertSpring()
    {
        RectangleItem* box = addBox(2, 0);
        SpringForce* spring = addSpring(nullptr, box, QPointF(0, 0), QPointF(2, 0), 500, 5);
        QCOMPARE(spring->bodyItems(), QList<BodyItem*>() << box);
        QCOMPARE(spring->bodyItem1Name(), QString());
        QCOMPARE(spring->anchor1(), QString());
        QCOMPARE(spring->snapPoints().size(), 1);
        box->setXForm(3, 0, 0);
        for (int i = 0; i < 5; ++i)
            world->step();
        QCOMPARE(box->positionX(), 3.0);
    }

    // The world removes a body's forces before the body; should a spring outlive its body
    // all the same, it must stop acting and never touch the freed body.
    void removedBodyLeavesNothingDangling()
    {
        RectangleItem* first = addBox(0, 0);
        RectangleItem* second = addBox(2, 0);
        QPointer<SpringForce> spring
            = addSpring(first, second, QPointF(0, 0), QPointF(2, 0), 500, 5);
        first->setXForm(-1, 0, 0);
        world->removePhysicsItem(second);
        QVERIFY(!world->contains(second));
        for (int i = 0; i < 5; ++i)
            world->step();
        QVERIFY(!spring || spring->bodyItems() == QList<BodyItem*>() << first);
        QVERIFY(!spring || spring->anchor2().isEmpty());
        QVERIFY(!spring || spring->bodyItem2Name().isEmpty());
        QCOMPARE(first->positionX(), -1.0);
        world->removePhysicsItem(spring);
        QVERIFY(world->contains(first));
    }

    // Deleting the world frees the bodies before the springs that come after them.
    void springOutlivesItsBodiesInTeardown()
    {
        QPointer<RectangleItem> first = addBox(0, 0);
        QPointer<RectangleItem> second = addBox(2, 0);
        QPointer<SpringForce> spring
            = addSpring(first, second, QPointF(0, 0), QPointF(2, 0), 500, 5);
        world->step();
        PhysicsWorld::destroy();
        world = nullptr;
        QVERIFY(first.isNull() && second.isNull());
        QVERIFY(spring.isNull());
    }
};

QTEST_MAIN(TestSpringForce)
#include "tst_springforce.moc"
