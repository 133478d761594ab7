#include "Commands/BodyCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"

#include <QGraphicsItem>

BodyCommand::BodyCommand(BodyItem* body, const QBrush& brush, const QString& text,
                         QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
    , body(body)
{
    setText(text);
    body->setActive(false);
    body->setBrush(brush);
    PhysicsWorld::instance()->addPhysicsItem(body);
    properties = XPropertyList::read(body);
}

BodyCommand::~BodyCommand()
{
    if (body)
        PhysicsWorld::instance()->removePhysicsItem(body);
}

void BodyCommand::redo()
{
    PhysicsWorldCommand::redo();
    if (!body)
        return;
    // Values first, then activation: a body's properties do not need a live body.
    XPropertyList::write(body, properties);
    body->setActive(true);
    selectOnly(body);
}

void BodyCommand::undo()
{
    if (body)
        body->setActive(false);
    PhysicsWorldCommand::undo();
}
