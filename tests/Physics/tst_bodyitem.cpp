#include "Application/Settings.h"
#include "Physics/BalloonItem.h"
#include "Physics/FlagsString.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QFile>
#include <QGraphicsTextItem>
#include <QTest>
#include <climits>
#include <cmath>

// Bodies: the collision filter letters, conversions, setters with their rebuild and wake
// rules, the three simple shapes and the balloon's lift.
class TestBodyItem : public QObject
{
    Q_OBJECT

    PhysicsWorld* world = nullptr;

    // Steps until the body's vertical velocity, measured over one second, shows its
    // acceleration in m/s².
    static double verticalAcceleration(PhysicsWorld* world, BodyItem* body)
    {
        world->step(); // forces added after a step act in the next one
        const double before = body->linearVelocityY();
        for (int i = 0; i < 60; ++i)
            world->step();
        return (body->linearVelocityY() - before) / (60 * world->timeStep());
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

    void flagsString_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("normal");
        QTest::addColumn<int>("number");
        QTest::newRow("unsorted lower case") << "ba"
                                             << "AB" << 3;
        QTest::newRow("first and last") << "pa"
                                        << "AP" << 32769;
        QTest::newRow("repeated") << "APa"
                                  << "AP" << 32769;
        QTest::newRow("empty means A") << ""
                                       << "A" << 1;
        QTest::newRow("no letters") << "123"
                                    << "" << 0;
        QTest::newRow("beyond P") << "QZ"
                                  << "" << 0;
        QTest::newRow("all") << "ABCDEFGHIJKLMNOP"
                             << "ABCDEFGHIJKLMNOP" << 65535;
    }
    void flagsString()
    {
        QFETCH(QString, text);
        QFETCH(QString, normal);
        QFETCH(int, number);
        const FlagsString flags(text);
        QCOMPARE(flags.text(), normal);
        QCOMPARE(int(flags.number()), number);
        QCOMPARE(flags.letters().size(), normal.size());
    }

    void filterReachesFixtures()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 1, 1);
        body->setFilterCategories(QStringLiteral("ba"));
        body->setFilterMasks(QString());
        body->setFilterGroupIndex(-3);
        QCOMPARE(body->property("FilterCategories").toString(), QStringLiteral("AB"));
        QCOMPARE(body->filterMasks(), QStringLiteral("A"));
        const b2Filter filter = body->shapes().first()->GetFilterData();
        QCOMPARE(int(filter.categoryBits), 3);
        QCOMPARE(int(filter.maskBits), 1);
        QCOMPARE(int(filter.groupIndex), -3);
        // Filters survive a rebuild of the fixtures.
        body->setFriction(0.9);
        QCOMPARE(int(body->shapes().first()->GetFilterData().categoryBits), 3);
        // A text without letters is no category at all, not the "A" of an empty text.
        body->setFilterCategories(QStringLiteral("123"));
        QCOMPARE(body->filterCategories(), QString());
        QCOMPARE(int(body->shapes().first()->GetFilterData().categoryBits), 0);
    }

    void angleInDegreesThroughFloat()
    {
        RectangleItem* body = world->createRectangle(1, 2, 0, 1, 1);
        body->setAngle(30.0);
        QVERIFY(qAbs(body->angle() - 30.0) < 1e-4);
        QCOMPARE(body->angle(), double(float(body->body()->GetAngle()) * 57.295776f));
        QVERIFY(qAbs(body->graphicsItem()->rotation() - 30.0) < 1e-4);
        QCOMPARE(body->positionX(), 1.0);
        QCOMPARE(body->positionY(), 2.0);
    }

    void bodyTypeChangesBrush()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 1, 1);
        QVERIFY(body->brush().texture().isNull());
        body->setBodyType(BodyItem::StaticBody);
        QVERIFY(!body->brush().texture().isNull());
        QVERIFY(body->isStatic());
        QCOMPARE(body->mass(), 0.0);
        QBrush black = body->brush();
        black.setColor(Qt::black);
        body->setBrush(black);
        body->setProperty("BodyType", int(BodyItem::DynamicBody));
        QCOMPARE(body->bodyType(), BodyItem::DynamicBody);
        QCOMPARE(body->brush().style(), Qt::SolidPattern);
        QVERIFY(body->brush().texture().isNull());
        QVERIFY(body->brush().color() != QColor(Qt::black));
        QVERIFY(body->mass() > 0.0);
    }

    void frictionRebuildsOnlyOnChange()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 1, 1);
        b2Fixture* fixture = body->shapes().first();
        body->setFriction(body->friction());
        QCOMPARE(body->shapes().first(), fixture);
        body->setRestitution(0.75);
        QCOMPARE(body->shapes().size(), 1);
        QCOMPARE(body->shapes().first()->GetRestitution(), 0.75f);
        QCOMPARE(double(body->shapes().first()->GetFriction()), double(float(0.3)));
    }

    void refusedValuesLeaveTheBodyAsItWas_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("negative density") << "Density" << QVariant(-1.0);
        QTest::newRow("density no float holds") << "Density" << QVariant(1e39);
        QTest::newRow("density too small for a mass") << "Density" << QVariant(1e-30);
        QTest::newRow("infinite position") << "X" << QVariant(double(INFINITY));
        QTest::newRow("position beyond the world") << "Y" << QVariant(2e6);
        QTest::newRow("angle not a number") << "Angle" << QVariant(double(NAN));
        QTest::newRow("width of nothing") << "Width" << QVariant(0.0);
        QTest::newRow("width not a number") << "Width" << QVariant(double(NAN));
        QTest::newRow("degenerate width") << "Width" << QVariant(1e-4);
        QTest::newRow("negative friction") << "Friction" << QVariant(-0.1);
        QTest::newRow("negative damping") << "LinearDamping" << QVariant(-1.0);
        QTest::newRow("spin no float holds") << "AngularVelocity" << QVariant(1e39);
        QTest::newRow("group beyond 16 bits") << "FilterGroupIndex" << QVariant(40000);
        QTest::newRow("no body type") << "BodyType" << QVariant(7);
        QTest::newRow("text size of nothing") << "TextSize" << QVariant(0);
        QTest::newRow("huge text size") << "TextSize" << QVariant(INT_MAX);
        QTest::newRow("z value not a number") << "ZValue" << QVariant(double(NAN));
    }
    void refusedValuesLeaveTheBodyAsItWas()
    {
        QFETCH(QString, property);
        QFETCH(QVariant, value);
        RectangleItem* body = world->createRectangle(2, 3, 0, 2, 1);
        const QByteArray name = property.toLatin1();
        const QVariant before = body->property(name);
        body->setProperty(name, value);
        QCOMPARE(body->property(name), before);
        QCOMPARE(body->mass(), 2.0);
        world->step();
        QCOMPARE(body->positionX(), 2.0);
    }

    void forcesActOnDynamicBodiesOnly()
    {
        world->setGravityY(0.0);
        RectangleItem* wall = world->createRectangle(0, 0, 0, 1, 1);
        wall->setBodyType(BodyItem::StaticBody);
        wall->applyForce(QLineF(0, 0, 100, 0));
        wall->applyLinearImpulse(QLineF(0, 0, 100, 0));
        QVERIFY(!wall->body()->IsAwake());
        world->step();
        QCOMPARE(wall->positionX(), 0.0);

        RectangleItem* box = world->createRectangle(5, 0, 0, 1, 1);
        box->body()->SetAwake(false);
        box->applyLinearImpulse(QLineF(5, 0, 6, 0));
        QVERIFY(box->body()->IsAwake());
        QCOMPARE(box->linearVelocityX(), 1.0);
    }

    void velocitiesOnStaticBodiesAreIgnored()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 1, 1);
        body->setBodyType(BodyItem::StaticBody);
        body->setAngularVelocity(2.0);
        body->setLinearVelocityX(1.0);
        QCOMPARE(body->angularVelocity(), 0.0);
        QCOMPARE(body->linearVelocityX(), 0.0);
    }

    void sleepingBodyShowsScriptedMove()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 1, 1);
        body->body()->SetAwake(false);
        body->setXForm(3.0, 4.0, 0.0);
        QCOMPARE(body->graphicsItem()->pos(), QPointF(3.0, 4.0));
    }

    void rectangleSizes()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 2, 1);
        QCOMPARE(body->property("Shapes").toInt(), 1);
        body->setWidth(0.0);
        body->setWidth(-1.0);
        QCOMPARE(body->width(), 2.0);
        body->setWidth(0.05);
        QCOMPARE(body->width(), 0.05);
        body->setWidth(0.11);
        body->scale(0.9090909090909091);
        QCOMPARE(body->width(), 0.11);
        QCOMPARE(body->height(), 1.0);
        // A moving body keeps its velocity through the rebuild of its fixtures.
        body->setLinearVelocity(1.0, -2.0);
        body->scale(2.0);
        QCOMPARE(body->linearVelocityX(), 1.0);
        QCOMPARE(body->linearVelocityY(), -2.0);
        QCOMPARE(body->width(), 0.22);
        QCOMPARE(body->height(), 2.0);
        QVERIFY(qAbs(body->mass() - 0.44) < 1e-5);
        const b2AABB box = body->shapes().first()->GetAABB(0);
        QVERIFY(qAbs(box.upperBound.y - box.lowerBound.y - 2.0f) < 0.05f);
    }

    // A rectangle makes its text item at its first text, with the size and colour set
    // before it.
    void rectangleText()
    {
        RectangleItem* body = world->createRectangle(0, 0, 0, 2, 1);
        QVERIFY(body->graphicsItem()->childItems().isEmpty());
        body->setTextSize(20);
        body->setTextColor(Qt::red);
        body->setText(QStringLiteral("Hello"));
        auto* textItem
            = qgraphicsitem_cast<QGraphicsTextItem*>(body->graphicsItem()->childItems().last());
        QVERIFY(textItem && textItem->isVisible());
        QCOMPARE(textItem->textWidth(), 100.0);
        QCOMPARE(textItem->font().pointSize(), 20);
        QCOMPARE(textItem->defaultTextColor(), QColor(Qt::red));
        body->setWidth(3.0);
        QCOMPARE(textItem->textWidth(), 150.0);
        QCOMPARE(textItem->pos(), QPointF(-1.5, 0.5));
        // A text of any length is kept; a rectangle lays out only its beginning.
        const QString longText(800000, QLatin1Char('x'));
        body->setText(longText);
        QCOMPARE(body->property("Text").toString(), longText);
        QVERIFY(textItem->toPlainText().size() < 10000);
        body->setText(QString());
        QVERIFY(!textItem->isVisible());
        QCOMPARE(body->textSize(), 20);
        QCOMPARE(body->textColor(), QColor(Qt::red));
    }

    void worldPolygons()
    {
        RectangleItem* rectangle = world->createRectangle(1, 1, M_PI / 2, 4, 2);
        const QRectF bounds = rectangle->worldPolygon().boundingRect();
        QVERIFY(qAbs(bounds.width() - 2.0) < 1e-5);
        QVERIFY(qAbs(bounds.height() - 4.0) < 1e-5);
        QCOMPARE(rectangle->worldPolygon().size(), 4);

        CircleItem* turned = world->createCircle(2, 3, 1.0, 0.5);
        CircleItem* straight = world->createCircle(2, 3, 0.0, 0.5);
        QCOMPARE(turned->worldPolygon(), straight->worldPolygon());
        QCOMPARE(turned->worldPolygon().size(), 36);
        QVERIFY(!turned->triangles().isEmpty());
    }

    void circleRadiusAndSpoke()
    {
        CircleItem* circle = world->createCircle(0, 0, 0, 1);
        QVERIFY(circle->showLine());
        circle->setRadius(0.0);
        QCOMPARE(circle->radius(), 1.0);
        circle->setRadius(2.0);
        QCOMPARE(double(circle->shapes().first()->GetShape()->m_radius), 2.0);
        circle->scale(0.01);
        QCOMPARE(circle->radius(), 2.0);
        QCOMPARE(circle->snapPoints().size(), 5);
    }

    void staticDefaultMakesWallsWithoutSpokes()
    {
        Settings::instance()->setIsStaticDefault(true);
        CircleItem* circle = world->createCircle(0, 0, 0, 1);
        RectangleItem* rectangle = world->createRectangle(0, 0, 0, 1, 1);
        Settings::instance()->setIsStaticDefault(false);
        QVERIFY(!circle->showLine());
        QVERIFY(rectangle->isStatic());
        QVERIFY(!rectangle->brush().texture().isNull());
    }

    void balloonLift_data()
    {
        QTest::addColumn<double>("force");
        QTest::addColumn<double>("acceleration");
        QTest::newRow("default lift") << 0.5 << 0.5;
        QTest::newRow("no lift") << -10.0 << -10.0;
        QTest::newRow("strong lift") << 2.0 << 2.0;
    }
    void balloonLift()
    {
        QFETCH(double, force);
        QFETCH(double, acceleration);
        BalloonItem* balloon = world->createBalloon(0, 0, 0, 0.5);
        balloon->setAngularDamping(0.0);
        balloon->setForce(force);
        QVERIFY(qAbs(verticalAcceleration(world, balloon) - acceleration) < 1e-3);
    }

    void staticBalloonStaysPut()
    {
        BalloonItem* balloon = world->createBalloon(0, 0, 0, 0.5);
        balloon->setBodyType(BodyItem::StaticBody);
        for (int i = 0; i < 10; ++i)
            world->step();
        QCOMPARE(balloon->positionY(), 0.0);
    }

    void zValuesStackInCreationOrder()
    {
        RectangleItem* lower = world->createRectangle(0, 0, 0, 1, 1);
        RectangleItem* upper = world->createRectangle(0, 0, 0, 1, 1);
        QCOMPARE(upper->zValue(), lower->zValue() + 1.0);
    }

    void groundIsAnOpenBox()
    {
        world->createGround();
        QCOMPARE(world->bodyItems().size(), 3);
        QCOMPARE(world->itemsBoundingRect().toAlignedRect(), QRect(-11, -1, 22, 17));
        for (BodyItem* body : world->bodyItems())
            QVERIFY(body->isStatic());
    }

    void restingBodyComesToRestOnGround()
    {
        world->createGround();
        RectangleItem* box = world->createRectangle(0, 5, 0, 1, 2);
        for (int i = 0; i < 300; ++i)
            world->step();
        QVERIFY(qAbs(box->positionY() - 1.0) < 0.02);
        QVERIFY(qAbs(box->graphicsItem()->pos().y() - box->positionY()) < 1e-6);
    }
};

QTEST_MAIN(TestBodyItem)
#include "tst_bodyitem.moc"
