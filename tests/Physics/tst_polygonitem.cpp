#include "Application/Settings.h"
#include "General/XPolygonF.h"
#include "NemuGeometry/Geometry.h"
#include "Physics/GearItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/RectangleItem.h"

#include <QFile>
#include <QGraphicsPathItem>
#include <QTest>
#include <cmath>

// Bodies made of many fixtures: polygons held as triangles of their outline, and gears as a
// disc with one fixture per tooth, both rebuilt whenever their geometry changes.
class TestPolygonItem : public QObject
{
    Q_OBJECT

    PhysicsWorld* world = nullptr;

    PolygonItem* addPolygon(const QPolygonF& outline)
    {
        auto* polygon = new PolygonItem(outline);
        world->addPhysicsItem(polygon);
        return polygon;
    }

    GearItem* addGear(double r, double toothSize, double divisor)
    {
        auto* gear = new GearItem(0, 0, 0, r, toothSize, divisor);
        world->addPhysicsItem(gear);
        return gear;
    }

    static QPolygonF square(double left, double bottom, double side)
    {
        return QPolygonF(QRectF(left, bottom, side, side)).mid(0, 4);
    }

    // A square of side 4 with a square hole of side 2, cut open along y = 2 from the left.
    static QPolygonF keyhole(const QPointF& offset)
    {
        return QPolygonF({QPointF(0, 0), QPointF(4, 0), QPointF(4, 4), QPointF(0, 4), QPointF(0, 2),
                          QPointF(1, 2), QPointF(1, 3), QPointF(3, 3), QPointF(3, 1), QPointF(1, 1),
                          QPointF(1, 2), QPointF(0, 2)})
            .translated(offset);
    }

    static bool coversWorldPoint(BodyItem* body, const QPointF& point)
    {
        for (b2Fixture* fixture : body->shapes()) {
            if (fixture->TestPoint(b2Vec2(float(point.x()), float(point.y()))))
                return true;
        }
        return false;
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

    void declaredProperties_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("displayName");
        QTest::addColumn<QStringList>("ownProperties");
        QTest::newRow("polygon") << "PolygonItem"
                                 << "Polygon" << QStringList {"ShowWireframe", "GeometryString"};
        QTest::newRow("gear") << "GearItem"
                              << "Gear"
                              << QStringList {"ShowPitchCircle", "PitchCircleRadius", "ToothSize",
                                              "ToothCountDivisor"};
    }
    void declaredProperties()
    {
        QFETCH(QString, className);
        QFETCH(QString, displayName);
        QFETCH(QStringList, ownProperties);
        BodyItem* body = className == QLatin1String("GearItem")
            ? static_cast<BodyItem*>(addGear(1, 0.4, 0.6))
            : addPolygon(square(0, 0, 1));
        const QMetaObject* meta = body->metaObject();
        QCOMPARE(QString::fromLatin1(meta->className()), className);
        const int info = meta->indexOfClassInfo(className.toLatin1());
        QVERIFY(info >= 0);
        QCOMPARE(QString::fromLatin1(meta->classInfo(info).value()), displayName);
        QCOMPARE(meta->propertyCount() - meta->propertyOffset(), ownProperties.size());
        for (int i = 0; i < ownProperties.size(); ++i) {
            const QMetaProperty property = meta->property(meta->propertyOffset() + i);
            QCOMPARE(QString::fromLatin1(property.name()), ownProperties.at(i));
            QVERIFY(property.isUser());
            QVERIFY(property.isWritable());
        }
    }

    void bodyStandsAtCentreOfOutline()
    {
        const QPolygonF outline({QPointF(3, 4), QPointF(7, 4), QPointF(6, 6), QPointF(4, 5.5)});
        PolygonItem* polygon = addPolygon(outline);
        QCOMPARE(polygon->position(), QPointF(5, 5));
        QCOMPARE(polygon->angle(), 0.0);

        bool ok = false;
        const QPolygonF geometry
            = Nemu::Geometry::polygonFromString(polygon->geometryString(), &ok);
        QVERIFY(ok);
        QVERIFY(geometry.isClosed());
        QCOMPARE(geometry.boundingRect(), QRectF(-2, -1, 4, 2));
        QCOMPARE(polygon->worldPolygon().boundingRect(), outline.boundingRect());
        QCOMPARE(polygon->shapeCount(), 2);
        QVERIFY(qAbs(polygon->mass() - 5.25) < 1e-4);
    }

    void shapesFollowTriangulation_data()
    {
        QTest::addColumn<QPolygonF>("outline");
        QTest::addColumn<double>("area");
        QTest::newRow("convex square") << square(-1, -1, 2) << 4.0;
        QTest::newRow("concave L") << QPolygonF({QPointF(0, 0), QPointF(2, 0), QPointF(2, 1),
                                                 QPointF(1, 1), QPointF(1, 2), QPointF(0, 2)})
                                   << 3.0;
        QTest::newRow("concave U")
            << QPolygonF({QPointF(0, 0), QPointF(3, 0), QPointF(3, 2), QPointF(2, 2), QPointF(2, 1),
                          QPointF(1, 1), QPointF(1, 2), QPointF(0, 2)})
            << 5.0;
        QTest::newRow("clockwise arrow")
            << QPolygonF({QPointF(0, 0), QPointF(1, 2), QPointF(2, 0), QPointF(1, 1)}) << 1.0;
        QTest::newRow("keyhole") << keyhole(QPointF(10, 10)) << 12.0;
    }
    void shapesFollowTriangulation()
    {
        QFETCH(QPolygonF, outline);
        QFETCH(double, area);
        PolygonItem* polygon = addPolygon(outline);
        const int triangles = XPolygonF(outline).triangulate().size();
        QVERIFY(triangles > 1);
        QCOMPARE(polygon->property("Shapes").toInt(), triangles);
        // Density 1, so the mass is the area that the triangles cover.
        QVERIFY(qAbs(polygon->mass() - area) < 1e-4);

        auto* wireframe
            = qgraphicsitem_cast<QGraphicsPathItem*>(polygon->graphicsItem()->childItems().first());
        QVERIFY(wireframe);
        QCOMPARE(wireframe->path().toSubpathPolygons().size(), triangles);
        QVERIFY(!wireframe->isVisible());
        polygon->setProperty("ShowWireframe", true);
        QVERIFY(wireframe->isVisible());
        QVERIFY(polygon->showWireframe());
    }

    // An outline of hundreds of triangles has its fixtures made and remade as one batch: the
    // mass is still that of the whole area, the body keeps its motion, and it collides.
    void manyTrianglesRebuildAsOne()
    {
        QPolygonF comb;
        for (int tooth = 0; tooth < 200; ++tooth)
            comb << QPointF(tooth * 0.1, 1) << QPointF(tooth * 0.1 + 0.05, 2);
        comb << QPointF(20, 1) << QPointF(20, 0) << QPointF(0, 0);
        PolygonItem* polygon = addPolygon(comb);
        QVERIFY(polygon->shapeCount() > 300);
        const double area = 20.0 + 200 * 0.5 * 0.1; // the strip and its teeth
        QVERIFY(qAbs(polygon->mass() - area) < 1e-3);
        polygon->setLinearVelocity(1.0, 2.0);
        polygon->setAngularVelocity(0.5);
        polygon->setFriction(0.9);
        QCOMPARE(polygon->linearVelocityX(), 1.0);
        QCOMPARE(polygon->linearVelocityY(), 2.0);
        QCOMPARE(polygon->angularVelocity(), 0.5);
        QVERIFY(qAbs(polygon->mass() - area) < 1e-3);
        QVERIFY(polygon->isActive());
        QVERIFY(coversWorldPoint(polygon, polygon->position() + QPointF(0, -0.2)));
        world->createRectangle(polygon->positionX(), -1, 0, 30, 1)
            ->setBodyType(BodyItem::StaticBody);
        polygon->setLinearVelocity(0.0, 0.0);
        polygon->setAngularVelocity(0.0);
        for (int i = 0; i < 120; ++i)
            world->step();
        QVERIFY(polygon->positionY() > 0.5);
    }

    void keyholeLeavesItsHoleOpen()
    {
        PolygonItem* polygon = addPolygon(keyhole(QPointF(-2, -2)));
        QCOMPARE(polygon->position(), QPointF(0, 0));
        QVERIFY(!coversWorldPoint(polygon, QPointF(0, 0)));
        QVERIFY(!coversWorldPoint(polygon, QPointF(0.9, 0.9)));
        QVERIFY(coversWorldPoint(polygon, QPointF(1.5, 1.5)));
        QVERIFY(coversWorldPoint(polygon, QPointF(-1.5, 0.3)));
    }

    void malformedGeometryStringChangesNothing_data()
    {
        QTest::addColumn<QString>("geometry");
        QTest::newRow("words") << "a square please";
        QTest::newRow("one bad point") << "0,0 1,0 x,1";
        QTest::newRow("missing coordinate") << "0,0 1,0 1";
        QTest::newRow("not a number") << "0,0 nan,0 1,1";
        QTest::newRow("infinite") << "0,0 inf,0 1,1";
    }
    void malformedGeometryStringChangesNothing()
    {
        QFETCH(QString, geometry);
        PolygonItem* polygon = addPolygon(square(4, 4, 2));
        const QString before = polygon->geometryString();
        const QList<b2Fixture*> fixtures = polygon->shapes();
        polygon->setProperty("GeometryString", geometry);
        QCOMPARE(polygon->geometryString(), before);
        QCOMPARE(polygon->shapes(), fixtures);
        QCOMPARE(polygon->position(), QPointF(5, 5));
    }

    void geometryStringReplacesOutlineInPlace()
    {
        PolygonItem* polygon = addPolygon(square(4, 4, 2));
        const QList<b2Fixture*> fixtures = polygon->shapes();
        polygon->setGeometryString(polygon->geometryString());
        QCOMPARE(polygon->shapes(), fixtures);

        // An outline away from the origin is centred on the body, which stays where it is.
        polygon->setGeometryString(QStringLiteral("10,10 13,10 13,11 11,11 11,13 10,13"));
        QCOMPARE(polygon->position(), QPointF(5, 5));
        QCOMPARE(polygon->worldPolygon().boundingRect(), QRectF(3.5, 3.5, 3, 3));
        QCOMPARE(polygon->shapeCount(), 4);
        polygon->setFriction(0.9);
        QCOMPARE(polygon->shapeCount(), 4);
        QCOMPARE(polygon->body()->GetFixtureList()->GetFriction(), 0.9f);
        int live = 0;
        for (b2Fixture* fixture = polygon->body()->GetFixtureList(); fixture;
             fixture = fixture->GetNext())
            ++live;
        QCOMPARE(live, 4);
        QVERIFY(qAbs(polygon->mass() - 5.0) < 1e-4);
    }

    void emptyPolygonHasNoFixtures()
    {
        auto* polygon = new PolygonItem(QPolygonF());
        world->addPhysicsItem(polygon);
        QCOMPARE(polygon->shapeCount(), 0);
        QCOMPARE(polygon->geometryString(), QString());
        QVERIFY(polygon->worldPolygon().isEmpty());
        for (int i = 0; i < 5; ++i)
            world->step();
        polygon->setGeometryString(QStringLiteral("0,0 1,0 0,1"));
        QCOMPARE(polygon->shapeCount(), 1);
    }

    // Each of these is kept from Box2D, which asserts on all but the sliver; the sliver is too
    // thin for its single-precision area to be trusted.
    void unusableOutlinesGiveNoFixtures_data()
    {
        QTest::addColumn<QPolygonF>("outline");
        QTest::newRow("collinear") << QPolygonF({QPointF(0, 0), QPointF(1, 0), QPointF(2, 0)});
        QTest::newRow("welded corners")
            << QPolygonF({QPointF(0, 0), QPointF(0.002, 0), QPointF(0, 0.002)});
        QTest::newRow("sliver") << QPolygonF({QPointF(0, 0), QPointF(100, 0), QPointF(50, 1e-5)});
        QTest::newRow("not a number")
            << QPolygonF({QPointF(0, 0), QPointF(qQNaN(), 0), QPointF(0, 1)});
        QTest::newRow("infinite") << QPolygonF({QPointF(0, 0), QPointF(qInf(), 0), QPointF(0, 1)});
        QTest::newRow("beyond single precision")
            << QPolygonF({QPointF(1e39, 0), QPointF(1e39 + 1e34, 0), QPointF(1e39, 1e34)});
    }
    void unusableOutlinesGiveNoFixtures()
    {
        QFETCH(QPolygonF, outline);
        PolygonItem* polygon = addPolygon(outline);
        QCOMPARE(polygon->shapeCount(), 0);
        QVERIFY(std::isfinite(polygon->positionX()) && std::isfinite(polygon->positionY()));
        world->step();
    }

    void scaleTransformsOutlineOnly()
    {
        PolygonItem* polygon = addPolygon(keyhole(QPointF(-2, -2)).mid(0, 4));
        polygon->setAngle(90.0);
        const QString geometry = polygon->geometryString();
        polygon->scale(2.0);
        QCOMPARE(polygon->geometryString(), geometry);
        QRectF bounds = polygon->worldPolygon().boundingRect();
        QVERIFY(qAbs(bounds.width() - 8.0) < 1e-4 && qAbs(bounds.height() - 8.0) < 1e-4);
        QVERIFY(qAbs(polygon->mass() - 64.0) < 1e-3);
        QVERIFY(coversWorldPoint(polygon, QPointF(3.9, -3.9)));

        // Scales multiply, since the transforms are combined.
        polygon->scale(0.25);
        bounds = polygon->worldPolygon().boundingRect();
        QVERIFY(qAbs(bounds.width() - 2.0) < 1e-4);
        QVERIFY(qAbs(polygon->mass() - 4.0) < 1e-4);
        QVERIFY(!coversWorldPoint(polygon, QPointF(1.5, 0)));
    }

    void scaleRefusesFactorsThatAreNoSize_data()
    {
        QTest::addColumn<double>("factor");
        QTest::newRow("zero") << 0.0;
        QTest::newRow("negative") << -2.0;
        QTest::newRow("not a number") << qQNaN();
        QTest::newRow("infinite") << qInf();
    }
    void scaleRefusesFactorsThatAreNoSize()
    {
        QFETCH(double, factor);
        PolygonItem* polygon = addPolygon(square(0, 0, 2));
        const QList<b2Fixture*> fixtures = polygon->shapes();
        polygon->scale(factor);
        QCOMPARE(polygon->shapes(), fixtures);
        QCOMPARE(polygon->worldPolygon().boundingRect(), QRectF(0, 0, 2, 2));
    }

    void snapPointsAndDebugScript()
    {
        const QPolygonF triangle({QPointF(0, 0), QPointF(3, 0), QPointF(0, 3)});
        PolygonItem* polygon = addPolygon(triangle);
        const QPolygonF snaps = polygon->snapPoints();
        QCOMPARE(snaps.size(), 4);
        // The centre of mass of the triangle, in body coordinates around (1.5, 1.5).
        QVERIFY(QLineF(snaps.first(), QPointF(-0.5, -0.5)).length() < 1e-5);
        QVERIFY(snaps.contains(QPointF(1.5, -1.5)));

        const QString script = polygon->debugInfo();
        QVERIFY(script.startsWith(polygon->PhysicsItem::debugInfo()));
        QVERIFY(script.contains(QLatin1String("\nvar polygon = new QPolygonF();")));
        QCOMPARE(script.count(QLatin1String("polygon.append(new QPointF(")), 3);
        QVERIFY(script.contains(QLatin1String("polygon.append(new QPointF(3, 0));\n")));
    }

    void polygonRestsOnGround()
    {
        world->createGround();
        PolygonItem* polygon = addPolygon(QPolygonF(
            {QPointF(-1, 4), QPointF(1, 4), QPointF(1, 5), QPointF(0, 4.5), QPointF(-1, 5)}));
        for (int i = 0; i < 300; ++i)
            world->step();
        QVERIFY(qAbs(polygon->worldPolygon().boundingRect().bottom() - 1.0) < 0.02);
        QVERIFY(qAbs(polygon->worldPolygon().boundingRect().top()) < 0.02);
    }

    void teethOfGear_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("divisor");
        QTest::addColumn<int>("teeth");
        QTest::newRow("r 1, d 0.6") << 1.0 << 0.6 << 10;
        QTest::newRow("r 0.5, d 0.6") << 0.5 << 0.6 << 5;
        QTest::newRow("r 2, d 0.3") << 2.0 << 0.3 << 42;
        QTest::newRow("rounds to nearest") << 1.0 << 2.5 << 3;
        QTest::newRow("too small for a tooth") << 0.04 << 0.6 << 0;
        QTest::newRow("not a number") << qQNaN() << 0.6 << 0;
        QTest::newRow("no divisor") << 1.0 << 0.0 << 0;
        QTest::newRow("bounded count") << 1e6 << 0.6 << 10000;
    }
    void teethOfGear()
    {
        QFETCH(double, radius);
        QFETCH(double, divisor);
        QFETCH(int, teeth);
        const QList<QPolygonF> polygons = gearTeeth(radius, 0.4, divisor);
        QCOMPARE(polygons.size(), teeth);
        const QPolygonF outline = gearOutline(radius, 0.4, divisor);
        QCOMPARE(outline.size(), 4 * teeth);
        if (teeth == 0)
            return;
        QCOMPARE(outline.mid(4, 4), polygons.at(1));
        // Root, two tip points, root; the first tooth starts on the x axis.
        const QPolygonF& first = polygons.first();
        QCOMPARE(first.first(), QPointF(radius - 0.2, 0));
        const double quarter = 2 * M_PI / teeth / 4;
        QVERIFY(qAbs(QLineF(QPointF(), first.at(1)).length() - (radius + 0.2)) < 1e-9);
        QVERIFY(qAbs(std::atan2(first.at(2).y(), first.at(2).x()) - 2 * quarter) < 1e-6);
        QVERIFY(qAbs(QLineF(QPointF(), first.at(3)).length() - (radius - 0.2)) < 1e-9);
    }

    void gearShapes_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("toothSize");
        QTest::addColumn<int>("shapes");
        QTest::newRow("disc and ten teeth") << 1.0 << 0.4 << 11;
        QTest::newRow("teeth beyond the centre leave no disc") << 1.0 << 2.5 << 10;
        QTest::newRow("no size at all") << qQNaN() << 0.4 << 0;
    }
    void gearShapes()
    {
        QFETCH(double, radius);
        QFETCH(double, toothSize);
        QFETCH(int, shapes);
        GearItem* gear = addGear(radius, toothSize, 0.6);
        QCOMPARE(gear->property("Shapes").toInt(), shapes);
        world->step();
    }

    void gearRebuildsOnSetters()
    {
        GearItem* gear = addGear(1.0, 0.4, 0.6);
        QCOMPARE(gear->shapeCount(), 11);
        QCOMPARE(gear->worldPolygon().size(), 40);
        const QList<b2Fixture*> fixtures = gear->shapes();
        gear->setToothSize(0.4);
        gear->setToothSize(0.0);
        gear->setToothSize(-1.0);
        gear->setToothCountDivisor(qQNaN());
        gear->setPitchCircleRadius(qInf());
        QCOMPARE(gear->shapes(), fixtures);
        QCOMPARE(gear->toothSize(), 0.4);

        gear->setProperty("ToothCountDivisor", 0.3);
        QCOMPARE(gear->shapeCount(), 22);
        gear->setProperty("PitchCircleRadius", 2.0);
        QCOMPARE(gear->shapeCount(), 43);
        QCOMPARE(gear->worldPolygon().size(), 4 * 42);
        gear->setProperty("ToothSize", 0.2);
        const b2Fixture* disc = gear->shapes().first();
        QCOMPARE(disc->GetShape()->m_radius, 1.9f);
        QVERIFY(qAbs(gear->worldPolygon().boundingRect().right() - 2.1) < 0.01);

        // Sizes that Box2D would weld into nothing leave out the teeth, not the program.
        gear->setToothCountDivisor(0.001);
        QCOMPARE(gear->shapeCount(), 1);
    }

    void gearIgnoresScaleAndSnapsAtCentre()
    {
        GearItem* gear = addGear(1.0, 0.4, 0.6);
        const QPolygonF outline = gear->worldPolygon();
        gear->scale(2.0);
        QCOMPARE(gear->worldPolygon(), outline);
        QCOMPARE(gear->snapPoints(), QPolygonF() << QPointF(0, 0));
        QCOMPARE(gear->property("PitchCircleRadius").toDouble(), 1.0);
    }

    void pitchCircleShowsTheRadiusOfConstruction()
    {
        GearItem* gear = addGear(1.0, 0.4, 0.6);
        auto* circle
            = qgraphicsitem_cast<QGraphicsEllipseItem*>(gear->graphicsItem()->childItems().first());
        QVERIFY(circle);
        QVERIFY(!circle->isVisible());
        QCOMPARE(circle->opacity(), 0.5);
        gear->setShowPitchCircle(true);
        QVERIFY(circle->isVisible());
        QCOMPARE(circle->rect(), QRectF(-1, -1, 2, 2));
        gear->setPitchCircleRadius(2.0);
        QCOMPARE(circle->rect(), QRectF(-1, -1, 2, 2));
    }

    void gearsMesh()
    {
        world->setGravityY(0.0);
        GearItem* driver = addGear(1.0, 0.4, 0.6);
        GearItem* driven = new GearItem(2.0, 0, 0, 1.0, 0.4, 0.6);
        world->addPhysicsItem(driven);
        driver->setBodyType(BodyItem::KinematicBody);
        driven->setAngle(18.0); // teeth into gaps
        b2RevoluteJointDef pin;
        pin.Initialize(world->backgroundBody(), driven->body(), b2Vec2(2.0f, 0.0f));
        world->box2D()->CreateJoint(&pin);
        driver->setAngularVelocity(1.0);
        for (int i = 0; i < 120; ++i)
            world->step();
        QVERIFY(driven->angularVelocity() < -0.5);
    }
};

QTEST_MAIN(TestPolygonItem)
#include "tst_polygonitem.moc"
