#include "ApplicationTestMain.h"
#include "Physics/CircleItem.h"
#include "Physics/ContactListener.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QGraphicsItem>
#include <QPointer>
#include <QScriptEngine>

// Contacts reach OnContact scripts once per new point and side; scripts may remove bodies
// and themselves from inside the step without touching freed objects.
class TestContacts : public QObject
{
    Q_OBJECT

    PhysicsWorld* world() { return PhysicsWorld::instance(); }
    QScriptValue run(const QString& script)
    {
        return Application::instance()->scriptEngine->evaluate(script);
    }
    void steps(int count)
    {
        for (int i = 0; i < count; ++i)
            world()->step();
    }

private slots:
    void init()
    {
        Application::instance()->newFile(true);
        run(QStringLiteral("hits = 0; others = [];"));
    }

    void restingCircleFiresOncePerSide()
    {
        CircleItem* ball = world()->createCircle(0, 0.6, 0, 0.5);
        ball->setRestitution(0.0);
        ball->setOnContact(QStringLiteral("hits = hits + 1; others.push(other.Name);"));
        BodyItem* floor = world()->bodyItems().first();
        floor->setRestitution(0.0); // no bounce, so the one contact lasts
        floor->setOnContact(QStringLiteral("hits = hits + 10;"));
        steps(120);
        QCOMPARE(run(QStringLiteral("hits")).toInt32(), 11);
        QCOMPARE(run(QStringLiteral("others[0]")).toString(), floor->name());
    }

    void twoPointManifoldFiresTwicePerSide()
    {
        RectangleItem* box = world()->createRectangle(0, 0.55, 0, 1, 1);
        box->setRestitution(0.0);
        world()->bodyItems().first()->setRestitution(0.0);
        box->setOnContact(QStringLiteral("hits = hits + 1;"));
        steps(120);
        QCOMPARE(run(QStringLiteral("hits")).toInt32(), 2);
    }

    void contactBufferIsExact()
    {
        QCOMPARE(ContactListener::maximumContactPoints, 2048);
        // 1100 boxes on the floor give 2200 touching points: the buffer stops at its size.
        for (int i = 0; i < 1100; ++i)
            world()->createRectangle(-9.5 + (i % 20) * 1.0, 0.5 + (i / 20) * 1.0, 0, 0.9, 0.99);
        steps(2);
        QCOMPARE(world()->contactListener()->contactCount, 2048);
    }

    void scriptRemovesOtherBodyInsideContact()
    {
        RectangleItem* box = world()->createRectangle(0, 0.55, 0, 1, 1);
        box->setOnContact(QStringLiteral("world.removeBody(other); hits = hits + 1;"));
        BodyItem* floor = world()->bodyItems().first();
        QPointer<BodyItem> floorGuard(floor);
        const QString floorName = floor->name();
        steps(30);
        QVERIFY(floorGuard.isNull());
        QVERIFY(!world()->physicsItemFromName(floorName));
        QCOMPARE(run(QStringLiteral("typeof %1").arg(floorName)).toString(),
                 QStringLiteral("undefined"));
        QCOMPARE(run(QStringLiteral("hits")).toInt32(), 1);
    }

    void scriptRemovesItselfInsideUpdate()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        QPointer<RectangleItem> guard(box);
        box->setOnUpdate(QStringLiteral("if (this.Y < 4) world.removeBody(this);"));
        steps(60);
        QVERIFY(guard.isNull());
        QCOMPARE(world()->bodyItems().size(), 3);
    }

    void removalDuringStartAndStop()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        RectangleItem* other = world()->createRectangle(3, 5, 0, 1, 1);
        QPointer<RectangleItem> otherGuard(other);
        box->setOnStart(
            QStringLiteral("world.removeBody(%1); app.newFile(true);").arg(other->name()));
        world()->start();
        world()->stop();
        QVERIFY(otherGuard.isNull());
        QCOMPARE(world()->bodyItems().size(), 3);
    }

    void newFileInsideStepEmptiesWorld()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        box->setOnUpdate(QStringLiteral("app.newFile();"));
        world()->step();
        QVERIFY(world()->items().isEmpty());
        QCOMPARE(world()->bodyCount(), 1);
    }

    void selectionSetPropertyStopsAtFirstRefusal()
    {
        CircleItem* circle = world()->createCircle(0, 5, 0, 1);
        RectangleItem* rectangle = world()->createRectangle(3, 5, 0, 1, 1);
        PhysicsItemList selection;
        selection << static_cast<PhysicsItem*>(circle) << static_cast<PhysicsItem*>(rectangle);
        QVERIFY(!selection.setProperty(QStringLiteral("Radius"), 2.0));
        QCOMPARE(circle->radius(), 2.0);
        QVERIFY(selection.setProperty(QStringLiteral("Density"), 2.0));
        QCOMPARE(rectangle->density(), 2.0);
        QVERIFY(PhysicsItemList().setProperty(QStringLiteral("Radius"), 1.0));
    }

    void removalFreesNameAndInactiveItemsBound()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        const QString name = box->name();
        world()->removePhysicsItem(box);
        QCOMPARE(run(QStringLiteral("typeof %1").arg(name)).toString(),
                 QStringLiteral("undefined"));
        RectangleItem* next = world()->createRectangle(0, 5, 0, 1, 1);
        next->setName(name);
        QCOMPARE(next->name(), name);
        PhysicsItemList inactive;
        inactive << next;
        next->setActive(false);
        QCOMPARE(inactive.boundingRect(), QRectF());
        QVERIFY(!next->graphicsItem()->isVisible());
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestContacts)
#include "tst_contacts.moc"
