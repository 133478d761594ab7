#include "ApplicationTestMain.h"
#include "Commands/CircleCommand.h"
#include "Commands/LinearImpulseCommand.h"
#include "Commands/PlayCommand.h"
#include "Commands/RectangleCommand.h"
#include "Commands/RemoveCommand.h"
#include "Commands/RevoluteJointCommand.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Tools/PlayPauseAction.h"

#include <QGraphicsItem>
#include <QPointer>
#include <QScriptEngine>
#include <QUndoStack>

// Undo as snapshot restore: creation, play and rewind, removal, and commands whose items a
// script deleted while they waited on the stack.
class TestCommands : public QObject
{
    Q_OBJECT

    PhysicsWorld* world() { return PhysicsWorld::instance(); }
    QUndoStack* stack() { return Application::instance()->undoStack; }
    RectangleItem* pushRectangle(double x, double y)
    {
        auto* command = new RectangleCommand(x, y, 0, 1, 1, QBrush(Qt::red));
        stack()->push(command);
        return static_cast<RectangleItem*>(command->item());
    }
    void steps(int count)
    {
        for (int i = 0; i < count; ++i)
            world()->step();
    }

private slots:
    void init() { Application::instance()->newFile(true); }

    void creationIsInactiveUntilRedo()
    {
        auto* command = new CircleCommand(1, 2, 0, 0.5, QBrush(Qt::blue));
        auto* circle = command->item();
        QVERIFY(world()->contains(circle));
        QVERIFY(!circle->isActive());
        QVERIFY(!circle->graphicsItem()->isVisible());
        stack()->push(command);
        QVERIFY(circle->isActive());
        QVERIFY(circle->graphicsItem()->isSelected());
        QCOMPARE(circle->brush().color(), QColor(Qt::blue));
        QCOMPARE(stack()->text(0), QStringLiteral("Circle"));
    }

    void playThenRewindThenUndoCreation()
    {
        RectangleItem* box = pushRectangle(0, 5);
        PlayPauseAction playPause(nullptr);
        playPause.trigger();
        QVERIFY(world()->running());
        QCOMPARE(stack()->count(), 2);
        steps(60);
        QVERIFY(box->positionY() < 4.0);
        playPause.trigger();
        QVERIFY(!world()->running());
        QCOMPARE(stack()->count(), 2);

        stack()->undo();
        QCOMPARE(box->positionY(), 5.0);
        QCOMPARE(box->graphicsItem()->pos().y(), 5.0);
        stack()->undo();
        QVERIFY(!box->isActive());
        QVERIFY(world()->bodyItems().contains(box));
        QVERIFY(!world()->activeItems().contains(box));
        stack()->redo();
        QVERIFY(box->isActive());
    }

    void undoneCreationDiesWithItsCommand()
    {
        pushRectangle(-3, 5);
        RectangleItem* second = pushRectangle(3, 5);
        QPointer<RectangleItem> guard(second);
        const QString name = second->name();
        stack()->undo();
        pushRectangle(0, 8);
        QVERIFY(guard.isNull());
        QVERIFY(!world()->physicsItemFromName(name));
        QCOMPARE(stack()->count(), 2);
    }

    void redoWritesValuesOfTheGesture()
    {
        RectangleItem* box = pushRectangle(0, 5);
        stack()->undo();
        box->setWidth(4.0);
        box->setPositionX(7.0);
        stack()->redo();
        QCOMPARE(box->width(), 1.0);
        QCOMPARE(box->positionX(), 0.0);
    }

    void redoRestoresOtherItemsToItsSnapshot()
    {
        RectangleItem* first = pushRectangle(0, 5);
        RectangleItem* second = pushRectangle(3, 5);
        stack()->undo();
        first->setPositionY(9.0);
        stack()->redo();
        QCOMPARE(first->positionY(), 5.0);
        QVERIFY(second->isActive());
    }

    void removeAndBringBack()
    {
        RectangleItem* box = pushRectangle(0, 5);
        box->setDensity(3.0);
        stack()->push(new RemoveCommand(QRectF(QPointF(0, 5), QSizeF(0, 0))));
        QVERIFY(!box->isActive());
        QVERIFY(world()->contains(box));
        box->setDensity(5.0);
        stack()->undo();
        QVERIFY(box->isActive());
        QCOMPARE(box->density(), 3.0);

        // A rectangle around the whole ground takes the three walls.
        auto* everything = new RemoveCommand(QRectF(-12, -2, 24, 20));
        stack()->push(everything);
        QCOMPARE(everything->items().size(), 4);
        QVERIFY(world()->activeItems().isEmpty());
        // Empty space gives an empty command all the same.
        auto* nothing = new RemoveCommand(QRectF(QPointF(50, 50), QSizeF(0, 0)));
        stack()->push(nothing);
        QVERIFY(nothing->items().isEmpty());
    }

    void linearImpulseShootsAndRewinds()
    {
        world()->setGravityY(0.0);
        RectangleItem* box = pushRectangle(0, 5);
        stack()->push(new LinearImpulseCommand(box, QLineF(0, 5, 2, 5)));
        QVERIFY(box->isBullet());
        QCOMPARE(box->linearVelocityX(), 2.0);
        stack()->undo();
        QCOMPARE(box->linearVelocityX(), 0.0);
        world()->setGravityY(-10.0);
    }

    void jointComesBackWithItsLimits()
    {
        RectangleItem* box = pushRectangle(0, 5);
        auto* command = new RevoluteJointCommand(box, nullptr, QPointF(0, 5), 0.25);
        auto* joint = static_cast<RevoluteJoint*>(command->item());
        QVERIFY(!joint->isActive());
        stack()->push(command);
        QCOMPARE(world()->jointCount(), 1);
        QVERIFY(joint->graphicsItem()->isSelected());
        joint->setLimits(-20.0, 35.0);
        joint->setLimitEnabled(true);
        stack()->push(new RemoveCommand(QRectF(QPointF(0, 5), QSizeF(0, 0))));
        QCOMPARE(world()->jointCount(), 0);
        stack()->undo();
        QCOMPARE(world()->jointCount(), 1);
        QVERIFY(qAbs(joint->lowerLimit() + 20.0) < 1e-4);
        QVERIFY(qAbs(joint->upperLimit() - 35.0) < 1e-4);
        QVERIFY(joint->limitEnabled());
        stack()->undo();
        QCOMPARE(world()->jointCount(), 0);
        stack()->redo();
        QCOMPARE(world()->jointCount(), 1);
    }

    void scriptDeletesItemsCommandsReferTo()
    {
        RectangleItem* box = pushRectangle(0, 5);
        RectangleItem* other = pushRectangle(3, 5);
        stack()->push(new LinearImpulseCommand(box, QLineF(0, 5, 1, 5)));
        stack()->push(new RemoveCommand(QRectF(QPointF(3, 5), QSizeF(0, 0))));
        stack()->push(new PlayCommand());
        world()->stop();
        Application::instance()->scriptEngine->evaluate(
            QStringLiteral("world.removeBody(%1); world.removeBody(%2);")
                .arg(box->name(), other->name()));
        while (stack()->canUndo())
            stack()->undo();
        while (stack()->canRedo())
            stack()->redo();
        stack()->undo();
        stack()->undo();
        stack()->clear();
        QCOMPARE(world()->bodyItems().size(), 3);
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestCommands)
#include "tst_commands.moc"
