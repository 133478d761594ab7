#include "Commands/PhysicsWorldCommand.h"

#include "Physics/PhysicsItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"

#include <QGraphicsItem>

PhysicsWorldCommand::PhysicsWorldCommand(QUndoCommand* parent)
    : Command(parent)
{
}

void PhysicsWorldCommand::redo()
{
    // The first redo takes the snapshot; the world's own list is never empty once taken.
    PhysicsWorld* world = PhysicsWorld::instance();
    if (physicsWorldState.worldProperties.properties.isEmpty())
        world->getState(physicsWorldState);
    world->setState(physicsWorldState);
}

void PhysicsWorldCommand::undo()
{
    PhysicsWorld::instance()->setState(physicsWorldState);
}

void PhysicsWorldCommand::selectOnly(PhysicsItem* item)
{
    PhysicsWorld::instance()->graphicsScene()->clearSelection();
    item->graphicsItem()->setSelected(true);
}
