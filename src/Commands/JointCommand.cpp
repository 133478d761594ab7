#include "Commands/JointCommand.h"

#include "Physics/JointItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"

#include <QGraphicsItem>

JointCommand::JointCommand(JointItem* joint, const QString& text, QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
    , joint(joint)
    , properties(XPropertyList::read(joint))
{
    setText(text);
    joint->setActive(false);
    PhysicsWorld::instance()->addPhysicsItem(joint);
}

JointCommand::~JointCommand()
{
    if (joint)
        PhysicsWorld::instance()->removePhysicsItem(joint);
}

void JointCommand::redo()
{
    PhysicsWorldCommand::redo();
    if (!joint)
        return;
    joint->setActive(true);
    XPropertyList::write(joint, properties);
    selectOnly(joint);
}

void JointCommand::undo()
{
    PhysicsWorldCommand::undo();
    if (joint)
        joint->setActive(false);
}
