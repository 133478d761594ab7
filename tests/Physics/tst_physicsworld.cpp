#include "Application/Settings.h"
#include "Physics/BalloonItem.h"
#include "Physics/ContactListener.h"
#include "Physics/GearItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/RectangleItem.h"
#include "TestItem.h"
#include "View/GraphicsScene.h"

#include <QFile>
#include <QMetaProperty>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <box2d/box2d.h>

// The world's properties, its step, start and stop, the reset, snapshots, the mouse joint and
// removal of items by scripts while the world iterates over them.
class TestPhysicsWorld : public QObject
{
    Q_OBJECT

    PhysicsWorld* world = nullptr;

    b2Body* createBox(b2BodyType type, float x, float y)
    {
        b2BodyDef definition;
        definition.type = type;
        definition.position.Set(x, y);
        b2Body* body = world->box2D()->CreateBody(&definition);
        b2PolygonShape box;
        box.SetAsBox(0.5f, 0.5f);
        body->CreateFixture(&box, 1.0f);
        return body;
    }

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("Brivane"));
        QFile::remove(Settings::settingsFileName());
    }
    void init() { world = PhysicsWorld::instance(); }
    void cleanup()
    {
        PhysicsWorld::destroy();
        QVERIFY(PhysicsWorld::box2DWorld() == nullptr);
    }
    void cleanupTestCase()
    {
        Settings::destroy();
        QFile::remove(Settings::settingsFileName());
    }

    void freshWorld()
    {
        QCOMPARE(world->property("StepFrequency").toInt(), 60);
        QCOMPARE(world->property("GravityY").toDouble(), -10.0);
        QCOMPARE(world->property("VelocityIterations").toInt(), 8);
        QCOMPARE(world->property("BodyCount").toInt(), 1);
        QCOMPARE(world->property("JointCount").toInt(), 0);
        QVERIFY(!world->running());
        QCOMPARE(world->graphicsScene()->itemIndexMethod(), QGraphicsScene::NoIndex);
        QCOMPARE(PhysicsWorld::box2DWorld(), world->box2D());
    }

    void clamps_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("signalCount");
        QTest::newRow("frequency low") << QByteArray("StepFrequency") << 10 << 30 << 1;
        QTest::newRow("frequency high") << QByteArray("StepFrequency") << 500 << 120 << 1;
        QTest::newRow("frequency same") << QByteArray("StepFrequency") << 60 << 60 << 0;
        QTest::newRow("velocity zero") << QByteArray("VelocityIterations") << 0 << 1 << 1;
        QTest::newRow("velocity hundred") << QByteArray("VelocityIterations") << 100 << 99 << 1;
        QTest::newRow("velocity same") << QByteArray("VelocityIterations") << 8 << 8 << 0;
        QTest::newRow("position zero") << QByteArray("PositionIterations") << 0 << 1 << 1;
        QTest::newRow("position hundred") << QByteArray("PositionIterations") << 100 << 99 << 1;
    }
    void clamps()
    {
        QFETCH(QByteArray, property);
        QFETCH(int, value);
        QFETCH(int, expected);
        QFETCH(int, signalCount);
        const QMetaProperty metaProperty
            = world->metaObject()->property(world->metaObject()->indexOfProperty(property));
        QSignalSpy spy(world, metaProperty.notifySignal());
        QVERIFY(world->setProperty(property, value));
        QCOMPARE(world->property(property).toInt(), expected);
        QCOMPARE(spy.count(), signalCount);
        world->setProperty(property, value);
        QCOMPARE(spy.count(), signalCount);
    }

    void gravityChangeSignalsAndWakes()
    {
        b2Body* body = createBox(b2_dynamicBody, 0, 0);
        body->SetAwake(false);
        QSignalSpy spy(world, &PhysicsWorld::gravityXChanged);
        world->setGravityX(-10.0);
        world->setGravityX(-10.0);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toDouble(), -10.0);
        QVERIFY(body->IsAwake());
        // A value that a float cannot hold reads back widened from the float.
        world->setGravityY(0.1);
        QCOMPARE(world->gravityY(), double(0.1f));
    }

    void switchesSignalOnlyOnChange()
    {
        QSignalSpy warm(world, &PhysicsWorld::warmStartingChanged);
        QSignalSpy continuous(world, &PhysicsWorld::continuousPhysicsChanged);
        world->setWarmStarting(true);
        world->setContinuousPhysics(false);
        world->setContinuousPhysics(false);
        QCOMPARE(warm.count(), 0);
        QCOMPARE(continuous.count(), 1);
    }

    void stepAdvancesTimeAndBodies()
    {
        b2Body* body = createBox(b2_dynamicBody, 0, 10);
        world->setStepFrequency(30);
        QSignalSpy finished(world, &PhysicsWorld::stepFinished);
        for (int i = 0; i < 3; ++i)
            world->step();
        QCOMPARE(finished.count(), 3);
        QVERIFY(qAbs(world->seconds() - 3.0 / 30.0) < 1e-12);
        QVERIFY(body->GetPosition().y < 10.0f);
    }

    void startAndStopRunScriptsAndTimer()
    {
        Settings::instance()->setTimerInterval(5);
        QSignalSpy started(world, &PhysicsWorld::started);
        QSignalSpy stopped(world, &PhysicsWorld::stopped);
        world->start();
        auto* timer = world->findChild<QTimer*>();
        QVERIFY(timer);
        QCOMPARE(timer->interval(), 5);
        QVERIFY(world->running());
        // The interval is read at start only.
        Settings::instance()->setTimerInterval(16);
        QCOMPARE(timer->interval(), 5);
        QSignalSpy steps(world, &PhysicsWorld::stepFinished);
        QVERIFY(steps.wait(1000));
        world->toggle();
        QVERIFY(!world->running());
        world->stop();
        QCOMPARE(started.count(), 1);
        QCOMPARE(stopped.count(), 2);
    }

    void clearResetsAllButGravity()
    {
        world->setGravityY(-3.0);
        world->setStepFrequency(100);
        world->setVelocityIterations(20);
        world->setWarmStarting(false);
        world->setRender(true);
        world->step();
        QPointer<RectangleItem> guard(world->createRectangle(0, 0, 0, 1, 1));
        QPointer<RectangleItem> wall(world->createRectangle(0, 0, 0, 1, 1));
        wall->setBodyType(BodyItem::StaticBody);
        QSignalSpy warm(world, &PhysicsWorld::warmStartingChanged);
        world->clear();
        QVERIFY(guard.isNull());
        QVERIFY(wall.isNull());
        QVERIFY(world->items().isEmpty());
        QCOMPARE(world->bodyCount(), 1);
        QCOMPARE(world->gravityY(), -3.0);
        QCOMPARE(world->stepFrequency(), 60);
        QCOMPARE(world->velocityIterations(), 8);
        QVERIFY(world->warmStarting());
        QCOMPARE(warm.count(), 1);
        QCOMPARE(world->render(), false);
        QCOMPARE(world->seconds(), 0.0);
        QCOMPARE(world->physicsItemInstanceCounter(), 0);
    }

    void propertiesRoundTrip()
    {
        world->setGravityX(2.0);
        world->setPositionIterations(12);
        const XPropertyList saved = world->properties();
        QCOMPARE(saved.object.data(), static_cast<QObject*>(world));
        QCOMPARE(saved.properties.first().name, QStringLiteral("GravityX"));
        QCOMPARE(saved.properties.size(), 11);
        world->setGravityX(0.0);
        world->setPositionIterations(3);
        createBox(b2_staticBody, 0, 0);
        world->setProperties(saved);
        QCOMPARE(world->gravityX(), 2.0);
        QCOMPARE(world->positionIterations(), 12);
        // Read-only entries travel along and are skipped.
        QCOMPARE(world->bodyCount(), 2);
    }

    void stateRestoresActiveItemsAndUpdatesAll()
    {
        auto* active = new TestItem();
        auto* inactive = new TestItem();
        world->addPhysicsItem(active);
        world->addPhysicsItem(inactive);
        inactive->setActive(false);
        active->setLevel(1.0);
        PhysicsWorldState state;
        world->getState(state);
        QCOMPARE(state.itemProperties.size(), 1);
        active->setLevel(5.0);
        const int updatesBefore = inactive->updates();
        world->setState(state);
        QCOMPARE(active->level(), 1.0);
        QCOMPARE(inactive->updates(), updatesBefore + 1);
    }

    void stateSkipsItemsDeletedSince()
    {
        auto* item = new TestItem();
        world->addPhysicsItem(item);
        PhysicsWorldState state;
        world->getState(state);
        world->removePhysicsItem(item);
        QVERIFY(state.itemProperties.first().object.isNull());
        world->setState(state);
        QVERIFY(world->items().isEmpty());
    }

    // Undo keeps one snapshot per entry: an item that has not changed since the previous
    // snapshot shares its values with it, and writing a snapshot back leaves such an item
    // alone; one that has changed gets values of its own and has them written back.
    void snapshotsShareTheValuesOfUnchangedItems_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<bool>("shared");
        QTest::newRow("nothing") << QString() << true;
        QTest::newRow("a setter") << "Friction" << false;
        QTest::newRow("a step") << "step" << false;
        QTest::newRow("a text") << "Text" << false;
    }
    void snapshotsShareTheValuesOfUnchangedItems()
    {
        QFETCH(QString, change);
        QFETCH(bool, shared);
        RectangleItem* body = world->createRectangle(0, 5, 0, 1, 1);
        PhysicsWorldState first;
        world->getState(first);
        if (change == "step")
            world->step();
        else if (!change.isEmpty())
            body->setProperty(change.toLatin1(), change == "Text" ? QVariant("A") : 0.25);
        PhysicsWorldState second;
        world->getState(second);
        const XPropertyList& before = first.itemProperties.last();
        const XPropertyList& after = second.itemProperties.last();
        QCOMPARE(after.properties.constData() == before.properties.constData(), shared);
        world->setState(first);
        QVERIFY(first.itemProperties.last().describes(body));
        QCOMPARE(body->positionY(), 5.0);
        QCOMPARE(body->text(), QString());
        world->removePhysicsItem(body);
    }

    // Snapshots read properties without QMetaProperty::read(): every value of every kind of
    // item must be what it gives, type included.
    void snapshotsReadAsQtReads()
    {
        QList<PhysicsItem*> items;
        items.append(world->createRectangle(0, 0, 0, 1, 1));
        items.append(world->createCircle(2, 0, 0, 0.5));
        items.append(world->createBalloon(4, 0, 0, 0.5));
        items.append(world->createGear(6, 0, 0, 1));
        items.append(world->createPolygon(QPolygonF({{0, 3}, {1, 3}, {0, 4}})));
        for (PhysicsItem* item : items) {
            const XPropertyList list = XPropertyList::read(item);
            const QMetaObject* metaObject = item->metaObject();
            QCOMPARE(list.properties.size(), metaObject->propertyCount() - 1);
            for (int index = 1; index < metaObject->propertyCount(); ++index) {
                const QVariant expected = metaObject->property(index).read(item);
                const QVariant& value = list.properties.at(index - 1).value;
                QCOMPARE(value.userType(), expected.userType());
                QCOMPARE(value, expected);
            }
            QVERIFY(list.describes(item));
            world->removePhysicsItem(item);
        }
    }

    void removalInsideStepIsDeferred()
    {
        auto* first = new TestItem();
        auto* second = new TestItem();
        auto* third = new TestItem();
        for (TestItem* item : {first, second, third})
            world->addPhysicsItem(item);
        QPointer<TestItem> secondGuard(second);
        QPointer<TestItem> firstGuard(first);
        // The first removes the second and itself, as an OnUpdate script may.
        first->onUpdateCallback = [this, first, second] {
            world->removePhysicsItem(second);
            world->removePhysicsItem(first);
        };
        world->step();
        QVERIFY(secondGuard.isNull());
        QVERIFY(firstGuard.isNull());
        QCOMPARE(world->items().size(), 1);
        QCOMPARE(third->updates(), 1);
        world->step();
        QCOMPARE(third->updates(), 2);
    }

    void itemAddedInsideStepWaitsForNextStep()
    {
        auto* creator = new TestItem();
        world->addPhysicsItem(creator);
        TestItem* created = nullptr;
        creator->onUpdateCallback = [this, &created, creator] {
            created = new TestItem();
            world->addPhysicsItem(created);
            creator->onUpdateCallback = nullptr;
        };
        world->step();
        QVERIFY(created);
        QCOMPARE(created->updates(), 0);
        world->step();
        QCOMPARE(created->updates(), 1);
    }

    void addAndRemoveKeepSceneAndList()
    {
        auto* item = new TestItem();
        world->addPhysicsItem(item);
        world->addPhysicsItem(item);
        world->addPhysicsItem(nullptr);
        QCOMPARE(world->items().size(), 1);
        QCOMPARE(item->graphicsItem()->scene(), world->graphicsScene());
        QVERIFY(world->contains(item));
        QCOMPARE(world->physicsItemFromName(item->name()), item);
        QCOMPARE(world->physicsItemFromGraphicsItem(item->graphicsItem()), item);
        world->removePhysicsItem(item);
        world->removePhysicsItem(item);
        QVERIFY(world->graphicsScene()->items().isEmpty());
    }

    void selectionSetProperty()
    {
        auto* first = new TestItem();
        auto* second = new TestItem();
        auto* unselected = new TestItem();
        for (TestItem* item : {first, second, unselected})
            world->addPhysicsItem(item);
        for (TestItem* item : {first, second})
            item->graphicsItem()->setFlag(QGraphicsItem::ItemIsSelectable);
        world->selectAll();
        QVERIFY(world->setSelectionSetProperty(QStringLiteral("Level"), 2.5));
        QCOMPARE(first->level(), 2.5);
        QCOMPARE(second->level(), 2.5);
        QCOMPARE(unselected->level(), 0.0);
        QVERIFY(!world->setSelectionSetProperty(QStringLiteral("Radius"), 1.0));
    }

    void mouseJointDragsOnlyBodiesWithMass()
    {
        RectangleItem* ground = world->createRectangle(0, 0, 0, 1, 1);
        ground->setBodyType(BodyItem::StaticBody);
        world->createMouseJoint(ground, 0, 0);
        QVERIFY(!world->mouseJoint());
        QCOMPARE(world->jointCount(), 0);

        world->setGravityY(0.0);
        RectangleItem* box = world->createRectangle(0, 5, 0, 1, 1);
        box->body()->SetAwake(false);
        // Grabbed at its centre and then pulled three metres to the right.
        world->createMouseJoint(box, 0, 5);
        QVERIFY(world->mouseJoint());
        QCOMPARE(world->jointCount(), 1);
        QVERIFY(box->body()->IsAwake());
        QCOMPARE(world->mouseJoint()->GetMaxForce(), float(box->mass()) * 3000.0f);
        world->setMouseJointTarget(3.0, 5.0);
        for (int i = 0; i < 120; ++i)
            world->step();
        QVERIFY(qAbs(box->positionX() - 3.0) < 0.05);
        world->destroyMouseJoint();
        world->destroyMouseJoint();
        QVERIFY(!world->mouseJoint());
        QCOMPARE(world->jointCount(), 0);
    }

    void removingDraggedBodyDropsMouseJoint()
    {
        RectangleItem* box = world->createRectangle(0, 5, 0, 1, 1);
        world->createMouseJoint(box, 0, 5);
        world->removeBody(box);
        QVERIFY(!world->mouseJoint());
        world->destroyMouseJoint();
        world->setMouseJointTarget(1.0, 1.0);
        QCOMPARE(world->jointCount(), 0);
    }

    void contactBufferIsLimited()
    {
        // Enough boxes resting on a floor to exceed the buffer in one step.
        b2BodyDef floorDefinition;
        b2Body* floor = world->box2D()->CreateBody(&floorDefinition);
        b2PolygonShape floorShape;
        floorShape.SetAsBox(1000.0f, 0.5f);
        floor->CreateFixture(&floorShape, 0.0f);
        for (int i = 0; i < 1100; ++i)
            createBox(b2_dynamicBody, -900.0f + i * 1.5f, 0.99f);
        world->step();
        QCOMPARE(world->contactListener()->contactCount, ContactListener::maximumContactPoints);
        world->setGravityY(0.0);
        PhysicsWorld::destroy();
        world = PhysicsWorld::instance();
        world->step();
        QCOMPARE(world->contactListener()->contactCount, 0);
    }
};

QTEST_MAIN(TestPhysicsWorld)
#include "tst_physicsworld.moc"
