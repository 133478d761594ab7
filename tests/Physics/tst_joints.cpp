#include "Application/Settings.h"
#include "NemuGeometry/Geometry.h"
#include "Physics/CircleItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"

#include <QFile>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsPixmapItem>
#include <QMetaProperty>
#include <QPointer>
#include <QTest>
#include <cmath>

// Joints: what their properties read, how they hold bodies under Box2D 2.4, and that they
// survive being switched off and on, bad values from scripts, and losing a body.
class TestJoints : public QObject
{
    Q_OBJECT

    PhysicsWorld* world = nullptr;

    void steps(int count)
    {
        for (int i = 0; i < count; ++i)
            world->step();
    }

    static double distance(const QPointF& a, const QPointF& b) { return QLineF(a, b).length(); }

    static QPointF point(const QString& text)
    {
        bool ok = false;
        const QPointF result = Nemu::Geometry::pointFromString(text, &ok);
        return ok ? result : QPointF(qQNaN(), qQNaN());
    }

    // A joint of the given type over a dynamic box at (0, 5) and the background, in the world.
    JointItem* createJoint(int type, BodyItem* body)
    {
        JointItem* joint = nullptr;
        switch (type) {
        case PhysicsItem::DistanceJointType:
            joint = new DistanceJoint(body, nullptr, QLineF(0, 5, 0, 8));
            break;
        case PhysicsItem::RevoluteJointType:
            joint = new RevoluteJoint(body, nullptr, QPointF(0, 5), 0.25);
            break;
        case PhysicsItem::PrismaticJointType:
            joint = new PrismaticJoint(body, nullptr, QLineF(-2, 5, 0, 5), QLineF(2, 5, 0, 5));
            break;
        default:
            joint = new PulleyJoint(body, nullptr,
                                    QPolygonF() << QPointF(0, 5) << QPointF(0, 8) << QPointF(2, 8)
                                                << QPointF(2, 5));
        }
        world->addPhysicsItem(joint);
        return joint;
    }

    // How the distance of a body from a point goes over a number of steps: its range, its
    // mean, and the steps from its first peak to its second, a spring's period. Box2D's soft
    // constraints lose energy, so later peaks fade.
    struct Swing
    {
        double shortest = 1e9;
        double longest = 0.0;
        double mean = 0.0;
        int period = 0;
    };
    Swing swing(BodyItem* body, const QPointF& anchor, int stepCount)
    {
        QVector<double> lengths;
        for (int i = 0; i < stepCount; ++i) {
            world->step();
            lengths.append(distance(body->position(), anchor));
        }
        Swing result;
        QVector<int> peaks;
        for (int i = 0; i < lengths.size(); ++i) {
            result.shortest = qMin(result.shortest, lengths[i]);
            result.longest = qMax(result.longest, lengths[i]);
            result.mean += lengths[i] / lengths.size();
            if (i > 0 && i + 1 < lengths.size() && lengths[i - 1] < lengths[i]
                && lengths[i] >= lengths[i + 1])
                peaks.append(i);
        }
        if (peaks.size() >= 2)
            result.period = peaks[1] - peaks[0];
        return result;
    }

    static QList<QGraphicsPixmapItem*> wheels(JointItem* joint)
    {
        QList<QGraphicsPixmapItem*> result;
        for (QGraphicsItem* rope : joint->graphicsItem()->childItems()) {
            for (QGraphicsItem* child : rope->childItems()) {
                if (auto* wheel = dynamic_cast<QGraphicsPixmapItem*>(child))
                    result.append(wheel);
            }
        }
        return result;
    }

private slots:
    void initTestCase()
    {
        QFile::remove(Settings::settingsFileName());
        Settings::instance();
    }
    void init() { world = PhysicsWorld::instance(); }
    void cleanup() { PhysicsWorld::destroy(); }
    void cleanupTestCase()
    {
        Settings::destroy();
        QFile::remove(Settings::settingsFileName());
    }

    void distanceJointMeasuresItsLine_data()
    {
        QTest::addColumn<QLineF>("line");
        QTest::addColumn<bool>("toBackground");
        QTest::newRow("vertical to the background") << QLineF(0, 5, 0, 8) << true;
        QTest::newRow("slanted between bodies") << QLineF(0, 5, 3, 9) << false;
        QTest::newRow("short") << QLineF(0, 5, 0.25, 5) << false;
    }
    void distanceJointMeasuresItsLine()
    {
        QFETCH(QLineF, line);
        QFETCH(bool, toBackground);
        RectangleItem* first = world->createRectangle(line.x1(), line.y1(), 0, 0.2, 0.2);
        RectangleItem* second
            = toBackground ? nullptr : world->createRectangle(line.x2(), line.y2(), 0, 0.2, 0.2);
        auto* joint = new DistanceJoint(first, second, line);
        world->addPhysicsItem(joint);
        QVERIFY(joint->isActive());
        QCOMPARE(joint->type(), int(PhysicsItem::DistanceJointType));
        QVERIFY(qAbs(joint->property("Length").toDouble() - line.length()) < 1e-5);
        QVERIFY(distance(point(joint->anchor1()), line.p1()) < 1e-5);
        QVERIFY(distance(point(joint->anchor2()), line.p2()) < 1e-5);
        QCOMPARE(joint->bodyItem1Name(), first->name());
        QCOMPARE(joint->property("BodyItem2Name").toString(),
                 toBackground ? QString() : second->name());
        QCOMPARE(joint->property("ReactionTorque").toDouble(), 0.0);
        QCOMPARE(joint->snapPoints().size(), 3);
        QVERIFY(distance(joint->snapPoints().at(1), line.center()) < 1e-5);
        // Joints lie above every body.
        QVERIFY(joint->zValue() > first->zValue());
        QCOMPARE(world->jointCount(), 1);
    }

    void anchorTextHasSixDigits()
    {
        RectangleItem* body = world->createRectangle(12.3456789, 1, 0, 1, 1);
        auto* joint = new RevoluteJoint(body, nullptr, QPointF(12.3456789, 1), 0.25);
        world->addPhysicsItem(joint);
        QCOMPARE(joint->property("Anchor1").toString(), QStringLiteral("12.3457,1"));
        QCOMPARE(joint->anchor2(), QStringLiteral("12.3457,1"));
    }

    void frequencyIsWhole_data()
    {
        QTest::addColumn<double>("frequency");
        QTest::addColumn<double>("expected");
        QTest::newRow("2.4 rounds down") << 2.4 << 2.0;
        QTest::newRow("0.4 makes it rigid") << 0.4 << 0.0;
        QTest::newRow("2.6 rounds up") << 2.6 << 3.0;
        QTest::newRow("whole") << 7.0 << 7.0;
        QTest::newRow("not a number is refused") << double(NAN) << 0.0;
        QTest::newRow("infinity is refused") << double(INFINITY) << 0.0;
    }
    void frequencyIsWhole()
    {
        QFETCH(double, frequency);
        QFETCH(double, expected);
        CircleItem* body = world->createCircle(0, 5, 0, 0.25);
        auto* joint = new DistanceJoint(body, nullptr, QLineF(0, 5, 0, 8));
        world->addPhysicsItem(joint);
        joint->setProperty("FrequencyHZ", frequency);
        QCOMPARE(joint->property("FrequencyHZ").toDouble(), expected);
    }

    void rigidDistanceJointHoldsItsLength()
    {
        // A pendulum let go 30 degrees from the top of its circle: a rope would let the bob
        // fall through the circle, only a rod holds it on it as it swings over.
        const QPointF pivot(0, 10);
        const QPointF start = pivot + 3.0 * QPointF(std::sin(M_PI / 6), std::cos(M_PI / 6));
        CircleItem* bob = world->createCircle(start.x(), start.y(), 0, 0.25);
        auto* joint = new DistanceJoint(bob, nullptr, QLineF(start, pivot));
        world->addPhysicsItem(joint);
        // Made a spring and then rigid again by a frequency that rounds to 0.
        joint->setFrequencyHz(3);
        joint->setFrequencyHz(0.4);
        QCOMPARE(joint->frequencyHz(), 0.0);
        double error = 0.0;
        double lowest = pivot.y();
        for (int i = 0; i < 300; ++i) {
            world->step();
            error = qMax(error, qAbs(distance(bob->position(), pivot) - 3.0));
            lowest = qMin(lowest, bob->positionY());
        }
        QVERIFY2(error < 0.01, qPrintable(QString::number(error)));
        // It did swing through the bottom of its circle.
        QVERIFY(lowest < pivot.y() - 2.95);
    }

    void softDistanceJointSwingsAtItsFrequency_data()
    {
        QTest::addColumn<double>("frequency");
        QTest::newRow("1 Hz") << 1.0;
        QTest::newRow("2 Hz") << 2.0;
    }
    void softDistanceJointSwingsAtItsFrequency()
    {
        QFETCH(double, frequency);
        CircleItem* bob = world->createCircle(0, 5, 0, 0.25);
        auto* joint = new DistanceJoint(bob, nullptr, QLineF(0, 5, 0, 8));
        world->addPhysicsItem(joint);
        joint->setFrequencyHz(frequency);
        const Swing result = swing(bob, QPointF(0, 8), 180);
        // Hanging from a spring, gravity stretches it by up to twice g/omega².
        const double omega = 2 * M_PI * frequency;
        QVERIFY(result.longest - 3.0 > 10.0 / (omega * omega));
        QVERIFY2(qAbs(result.period - 60 / frequency) <= 1,
                 qPrintable(QString::number(result.period)));
    }

    void collideConnectedRebuildsAndKeepsTheSpring()
    {
        CircleItem* bob = world->createCircle(0, 5, 0, 0.25);
        auto* joint = new DistanceJoint(bob, nullptr, QLineF(0, 5, 0, 8));
        world->addPhysicsItem(joint);
        joint->setLength(2.5);
        joint->setFrequencyHz(2.0);
        joint->setDampingRatio(0.0);
        QVERIFY(joint->collideConnected());
        joint->setCollideConnected(false);
        QVERIFY(!joint->property("CollideConnected").toBool());
        QVERIFY(joint->isActive());
        QCOMPARE(world->jointCount(), 1);
        QVERIFY(qAbs(joint->length() - 2.5) < 1e-6);
        // The rebuilt joint is the same spring: it swings twice a second about its new length,
        // stretched by g/omega² under the bob.
        const Swing result = swing(bob, QPointF(0, 8), 300);
        QVERIFY2(qAbs(result.period - 30) <= 1, qPrintable(QString::number(result.period)));
        const double omega = 4 * M_PI;
        QVERIFY2(qAbs(result.mean - 2.5 - 10.0 / (omega * omega)) < 0.02,
                 qPrintable(QString::number(result.mean)));
    }

    void dampingRatioCalmsTheSpring()
    {
        CircleItem* bob = world->createCircle(0, 5, 0, 0.25);
        auto* joint = new DistanceJoint(bob, nullptr, QLineF(0, 5, 0, 8));
        world->addPhysicsItem(joint);
        joint->setFrequencyHz(2.0);
        joint->setDampingRatio(1.0);
        steps(120);
        // Critically damped, it has come to rest at g/omega² below its length.
        const Swing result = swing(bob, QPointF(0, 8), 60);
        QVERIFY(result.longest - result.shortest < 1e-3);
        const double omega = 4 * M_PI;
        QVERIFY(qAbs(result.longest - 3.0 - 10.0 / (omega * omega)) < 0.01);
    }

    void revoluteJointPinsABody()
    {
        RectangleItem* box = world->createRectangle(1, 5, 0, 2, 0.2);
        auto* joint = new RevoluteJoint(box, nullptr, QPointF(1, 5), 0.25);
        world->addPhysicsItem(joint);
        QCOMPARE(joint->type(), int(PhysicsItem::RevoluteJointType));
        QCOMPARE(joint->radius(), 0.25);
        steps(60);
        QVERIFY(distance(box->position(), QPointF(1, 5)) < 1e-3);
        QCOMPARE(joint->snapPoints(), QPolygonF() << QPointF(0, 0));
        QVERIFY(distance(joint->graphicsItem()->pos(), QPointF(1, 5)) < 1e-3);
    }

    void setAngleMovesNoBody()
    {
        RectangleItem* box = world->createRectangle(1, 5, 0, 2, 0.2);
        auto* joint = new RevoluteJoint(box, nullptr, QPointF(1, 5), 0.25);
        world->addPhysicsItem(joint);
        QVERIFY(qAbs(joint->angle()) < 1e-6);
        joint->setProperty("Angle", 30.0);
        QVERIFY(qAbs(joint->property("Angle").toDouble() - 30.0) < 1e-4);
        QVERIFY(qAbs(joint->graphicsItem()->rotation() - 30.0) < 1e-4);
        QCOMPARE(world->jointCount(), 1);
        steps(60);
        QVERIFY(qAbs(box->angle()) < 1e-3);
        QVERIFY(qAbs(joint->angle() - 30.0) < 1e-3);
    }

    void setAngleShiftsTheLimits()
    {
        // Box2D's joint angle is the opposite of Angle; with the limits at ±10 degrees around
        // a joint angle of -30, the box turns until Angle is 10, by -20 degrees.
        RectangleItem* box = world->createRectangle(1, 5, 0, 2, 0.2);
        auto* joint = new RevoluteJoint(box, nullptr, QPointF(1, 5), 0.25);
        world->addPhysicsItem(joint);
        joint->setLimits(-10, 10);
        joint->setLimitEnabled(true);
        joint->setAngle(30);
        steps(120);
        // Box2D lets a limit be passed by up to its angular slop of 2 degrees.
        QVERIFY2(qAbs(box->angle() + 20.0) < 2.5, qPrintable(QString::number(box->angle())));
        QVERIFY(qAbs(joint->angle() - 10.0) < 2.5);
    }

    void motorShowsOnTheRing()
    {
        RectangleItem* box = world->createRectangle(1, 5, 0, 2, 0.2);
        auto* joint = new RevoluteJoint(box, nullptr, QPointF(1, 5), 0.25);
        world->addPhysicsItem(joint);
        auto* ring = static_cast<QGraphicsEllipseItem*>(joint->graphicsItem());
        QCOMPARE(ring->brush().color(), QColor(Qt::black));
        joint->setMotorSpeed(2.0);
        joint->setMotorEnabled(true);
        QCOMPARE(ring->brush().color(), QColor(Qt::red));
        steps(1);
        QVERIFY(qAbs(joint->motorTorque()) > 0.0);
        steps(59);
        // The motor turns the background against the box: the box turns backwards.
        QVERIFY(qAbs(box->angularVelocity() + 2.0) < 1e-3);
        joint->setMotorEnabled(false);
        QCOMPARE(ring->brush().color(), QColor(Qt::black));
    }

    void settingsSurviveDeactivation()
    {
        // A bar pinned at its left end falls clockwise; the upper limit of the joint angle,
        // the opposite of the bar's angle, stops it.
        RectangleItem* bar = world->createRectangle(1, 5, 0, 2, 0.2);
        auto* joint = new RevoluteJoint(bar, nullptr, QPointF(0, 5), 0.25);
        world->addPhysicsItem(joint);
        joint->setLimits(-30, 60);
        joint->setLimitEnabled(true);
        joint->setMotorSpeed(1.5);

        joint->setActive(false);
        QVERIFY(!joint->isActive());
        QVERIFY(!joint->graphicsItem()->isVisible());
        QCOMPARE(world->jointCount(), 0);
        QVERIFY(qAbs(joint->lowerLimit() + 30.0) < 1e-4);
        joint->setUpperLimit(45);
        QVERIFY(qAbs(joint->property("UpperLimit").toDouble() - 45.0) < 1e-4);

        joint->setActive(true);
        QVERIFY(joint->isActive());
        QVERIFY(joint->graphicsItem()->isVisible());
        QCOMPARE(world->jointCount(), 1);
        QVERIFY(qAbs(joint->lowerLimit() + 30.0) < 1e-4);
        QVERIFY(qAbs(joint->upperLimit() - 45.0) < 1e-4);
        QVERIFY(joint->limitEnabled());
        QCOMPARE(joint->motorSpeed(), 1.5);
        steps(120);
        QVERIFY2(qAbs(bar->angle() + 45.0) < 2.0, qPrintable(QString::number(bar->angle())));
    }

    void prismaticJointSlidesAQuarterEachWay_data()
    {
        QTest::addColumn<double>("velocity");
        QTest::addColumn<double>("travel");
        QTest::newRow("to the right") << 8.0 << 1.0;
        QTest::newRow("to the left") << -8.0 << -1.0;
    }
    void prismaticJointSlidesAQuarterEachWay()
    {
        QFETCH(double, velocity);
        QFETCH(double, travel);
        // Drawn over 4 m from (-2, 5) to (2, 5), anchored in the middle.
        RectangleItem* box = world->createRectangle(0, 5, 0, 0.5, 0.5);
        auto* joint = new PrismaticJoint(box, nullptr, QLineF(-2, 5, 0, 5), QLineF(2, 5, 0, 5));
        world->addPhysicsItem(joint);
        QCOMPARE(joint->type(), int(PhysicsItem::PrismaticJointType));
        QCOMPARE(joint->property("BodyItem1AnchorX").toDouble(), -2.0);
        QCOMPARE(joint->bodyItem2AnchorX(), 2.0);
        box->setLinearVelocityX(velocity);
        steps(120);
        QVERIFY2(qAbs(box->positionX() - travel) < 0.02,
                 qPrintable(QString::number(box->positionX())));
        // Gravity stands across the axis and does not move it.
        QVERIFY(qAbs(box->positionY() - 5.0) < 0.01);
        // The track's end on the box has moved with it; the one on the background has not.
        QVERIFY(qAbs(joint->bodyItem1AnchorX() - (-2.0 + travel)) < 0.02);
        QCOMPARE(joint->bodyItem2AnchorX(), 2.0);
        auto* track = static_cast<QGraphicsLineItem*>(joint->graphicsItem());
        QVERIFY(distance(track->line().p1(), QPointF(-2.0 + travel, 5)) < 0.02);
    }

    void prismaticSlotsActOnTheLiveJoint()
    {
        RectangleItem* box = world->createRectangle(0, 5, 0, 0.5, 0.5);
        auto* joint = new PrismaticJoint(box, nullptr, QLineF(-2, 5, 0, 5), QLineF(2, 5, 0, 5));
        world->addPhysicsItem(joint);
        joint->setLimits(-3, 3);
        joint->setMaxMotorForce(1000);
        joint->setMotorSpeed(-2);
        steps(60);
        // The motor drives the translation, the background's anchor less the box's along the
        // axis, at -2 m/s: the box runs right, past the quarter that the joint first allowed.
        QVERIFY2(qAbs(box->positionX() - 2.0) < 0.05,
                 qPrintable(QString::number(box->positionX())));
        // Neither limits nor motor are in the definition: off and on, the joint is as new.
        joint->setActive(false);
        joint->setActive(true);
        box->setXForm(0, 5, 0);
        box->setLinearVelocity(8, 0);
        steps(120);
        QVERIFY(qAbs(box->positionX() - 1.0) < 0.02);
    }

    void pulleyWheelsTurnWithTheRope_data()
    {
        QTest::addColumn<double>("density1");
        QTest::addColumn<double>("density2");
        QTest::newRow("first side heavier") << 3.0 << 1.0;
        QTest::newRow("second side heavier") << 1.0 << 3.0;
    }
    void pulleyWheelsTurnWithTheRope()
    {
        QFETCH(double, density1);
        QFETCH(double, density2);
        CircleItem* first = world->createCircle(-2, 5, 0, 0.5);
        CircleItem* second = world->createCircle(2, 5, 0, 0.5);
        first->setDensity(density1);
        second->setDensity(density2);
        const QPointF ground1(-2, 10);
        const QPointF ground2(2, 10);
        auto* joint = new PulleyJoint(
            first, second, QPolygonF() << QPointF(-2, 5) << ground1 << ground2 << QPointF(2, 5));
        world->addPhysicsItem(joint);
        QCOMPARE(joint->type(), int(PhysicsItem::PulleyJointType));
        QCOMPARE(joint->property("GroundAnchorA_X").toDouble(), -2.0);
        QCOMPARE(joint->groundAnchorBY(), 10.0);
        const QList<QGraphicsPixmapItem*> pulleyWheels = wheels(joint);
        QCOMPARE(pulleyWheels.size(), 2);
        steps(60);

        const double ropeRun = distance(ground1, first->position()) - 5.0;
        // The heavier side goes down and pulls the other up by as much.
        QVERIFY(density1 > density2 ? ropeRun > 0.1 : ropeRun < -0.1);
        QVERIFY(qAbs(distance(ground2, second->position()) - 5.0 + ropeRun) < 0.01);
        for (QGraphicsPixmapItem* wheel : pulleyWheels)
            QVERIFY2(qAbs(wheel->rotation() - 50.0 * ropeRun) < 0.5,
                     qPrintable(QString::number(wheel->rotation())));
        // The ropes end at the bodies, the main line stays between the ground points.
        auto* groundLine = static_cast<QGraphicsLineItem*>(joint->graphicsItem());
        QCOMPARE(groundLine->line(), QLineF(ground1, ground2));
        auto* rope = static_cast<QGraphicsLineItem*>(groundLine->childItems().first());
        QVERIFY(distance(rope->line().p2(), first->position()) < 1e-4);
    }

    void limitsInTheWrongOrderAreOrdered_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<double>("expectedLower");
        QTest::addColumn<double>("expectedUpper");
        QTest::newRow("both, upper below lower") << "setLimits" << 50.0 << -50.0 << 50.0 << 50.0;
        QTest::newRow("lower above upper raises it")
            << "setLowerLimit" << 90.0 << 0.0 << 90.0 << 90.0;
        QTest::newRow("upper below lower lowers it")
            << "setUpperLimit" << 0.0 << -90.0 << -90.0 << -90.0;
        QTest::newRow("lower not a number")
            << "setLowerLimit" << double(NAN) << 0.0 << -10.0 << 10.0;
        QTest::newRow("both, upper infinite")
            << "setLimits" << 0.0 << double(INFINITY) << -10.0 << 10.0;
    }
    void limitsInTheWrongOrderAreOrdered()
    {
        QFETCH(QString, call);
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(double, expectedLower);
        QFETCH(double, expectedUpper);
        for (bool active : {true, false}) {
            RectangleItem* box = world->createRectangle(1, 5, 0, 2, 0.2);
            auto* joint = new RevoluteJoint(box, nullptr, QPointF(0, 5), 0.25);
            world->addPhysicsItem(joint);
            joint->setLimits(-10, 10);
            joint->setLimitEnabled(true);
            joint->setActive(active);
            if (call == QLatin1String("setLimits"))
                joint->setLimits(lower, upper);
            else if (call == QLatin1String("setLowerLimit"))
                joint->setLowerLimit(lower);
            else
                joint->setUpperLimit(upper);
            joint->setActive(true);
            steps(10);
            QVERIFY(qAbs(joint->lowerLimit() - expectedLower) < 1e-4);
            QVERIFY(qAbs(joint->upperLimit() - expectedUpper) < 1e-4);
            world->removePhysicsItem(joint);
            world->removePhysicsItem(box);
        }
    }

    void prismaticLimitsInTheWrongOrder_data()
    {
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<double>("leftmost");
        QTest::addColumn<double>("rightmost");
        // Box2D holds a joint with equal limits at a translation of 0, not at the limits.
        QTest::newRow("upper below lower") << 0.5 << -3.0 << -0.52 << 0.02;
        QTest::newRow("not a number") << double(NAN) << 3.0 << -1.02 << -0.98;
    }
    void prismaticLimitsInTheWrongOrder()
    {
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(double, leftmost);
        QFETCH(double, rightmost);
        RectangleItem* box = world->createRectangle(0, 5, 0, 0.5, 0.5);
        auto* joint = new PrismaticJoint(box, nullptr, QLineF(-2, 5, 0, 5), QLineF(2, 5, 0, 5));
        world->addPhysicsItem(joint);
        joint->setLimits(lower, upper);
        // Moving left, the box's anchor falls behind the background's: the upper limit stops it.
        box->setLinearVelocityX(-8);
        steps(120);
        QVERIFY2(box->positionX() > leftmost && box->positionX() < rightmost,
                 qPrintable(QString::number(box->positionX())));
    }

    void inactiveJointAnswersFromItsDefinition_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("distance") << int(PhysicsItem::DistanceJointType);
        QTest::newRow("revolute") << int(PhysicsItem::RevoluteJointType);
        QTest::newRow("prismatic") << int(PhysicsItem::PrismaticJointType);
        QTest::newRow("pulley") << int(PhysicsItem::PulleyJointType);
    }
    void inactiveJointAnswersFromItsDefinition()
    {
        QFETCH(int, type);
        RectangleItem* box = world->createRectangle(0, 5, 0, 0.5, 0.5);
        JointItem* joint = createJoint(type, box);
        QCOMPARE(joint->type(), type);
        QVERIFY(joint->isActive());
        const QString anchor1 = joint->anchor1();
        joint->setActive(false);
        QCOMPARE(world->jointCount(), 0);
        QCOMPARE(joint->anchor1(), anchor1);

        // Everything reads; what a joint class declares takes a new value and keeps it.
        const QMetaObject* meta = joint->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i)
            QVERIFY2(meta->property(i).read(joint).isValid(), meta->property(i).name());
        QMap<QByteArray, QVariant> written;
        for (int i = JointItem::staticMetaObject.propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (!property.isWritable())
                continue;
            const QVariant value = property.read(joint);
            QVariant changed;
            if (value.userType() == QMetaType::Double)
                changed = value.toDouble() + 1.0;
            else if (value.userType() == QMetaType::Bool)
                changed = !value.toBool();
            else if (value.userType() == QMetaType::QColor)
                changed = QColor(Qt::blue);
            QVERIFY2(changed.isValid(), property.name());
            QVERIFY(property.write(joint, changed));
            written.insert(property.name(), changed);
            // Not a number changes nothing.
            if (value.userType() == QMetaType::Double)
                property.write(joint, double(NAN));
        }
        QVERIFY(!joint->isActive());
        joint->setActive(true);
        QVERIFY(joint->isActive());
        QCOMPARE(world->jointCount(), 1);
        for (auto it = written.cbegin(); it != written.cend(); ++it) {
            const QVariant value = joint->property(it.key());
            if (it.value().userType() == QMetaType::Double)
                QVERIFY2(qAbs(value.toDouble() - it.value().toDouble()) < 1e-4,
                         it.key().constData());
            else
                QVERIFY2(value == it.value(), it.key().constData());
        }
        steps(10);
    }

    void jointWithOneBodyTwiceStaysInactive()
    {
        RectangleItem* box = world->createRectangle(0, 5, 0, 0.5, 0.5);
        auto* joint = new RevoluteJoint(box, box, QPointF(0, 5), 0.25);
        world->addPhysicsItem(joint);
        QVERIFY(!joint->isActive());
        joint->setActive(true);
        QVERIFY(!joint->isActive());
        QVERIFY(!joint->graphicsItem()->isVisible());
        QCOMPARE(world->jointCount(), 0);
        steps(10);
    }

    void jointOutlivesItsBody_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("active");
        QTest::newRow("active distance") << int(PhysicsItem::DistanceJointType) << true;
        QTest::newRow("inactive revolute") << int(PhysicsItem::RevoluteJointType) << false;
        QTest::newRow("active prismatic") << int(PhysicsItem::PrismaticJointType) << true;
        QTest::newRow("active pulley") << int(PhysicsItem::PulleyJointType) << true;
    }
    void jointOutlivesItsBody()
    {
        QFETCH(int, type);
        QFETCH(bool, active);
        RectangleItem* box = world->createRectangle(0, 5, 0, 0.5, 0.5);
        QPointer<JointItem> joint = createJoint(type, box);
        joint->setActive(active);
        world->removePhysicsItem(box);
        // Either the world took the joint with its body, or the joint let go of both.
        if (joint) {
            QVERIFY(!joint->isActive());
            QVERIFY(joint->bodyItem1Name().isEmpty());
            joint->setActive(true);
            QVERIFY(!joint->isActive());
            for (int i = 0; i < joint->metaObject()->propertyCount(); ++i)
                QVERIFY(joint->metaObject()->property(i).read(joint).isValid());
            joint->update();
        }
        QCOMPARE(world->jointCount(), 0);
        steps(10);
        world->removePhysicsItem(joint);
    }
};

QTEST_MAIN(TestJoints)
#include "tst_joints.moc"
