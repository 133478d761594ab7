#include "Commands/SpringForceCommand.h"

#include "Physics/PhysicsWorld.h"
#include "Physics/SpringForce.h"
#include "View/GraphicsScene.h"

#include <QGraphicsItem>
#include <QObject>

SpringForceCommand::SpringForceCommand(BodyItem* item1, BodyItem* item2, const QPointF& p1,
                                       const QPointF& p2, double k, double damping,
                                       const QColor& color, QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
    , force(new SpringForce(item1, item2, p1, p2, k, damping))
{
    setText(QObject::tr("Spring Force"));
    force->setColor(color);
    force->setActive(false);
    PhysicsWorld::instance()->addPhysicsItem(force);
    properties = XPropertyList::read(force);
}

SpringForceCommand::~SpringForceCommand()
{
    if (force)
        PhysicsWorld::instance()->removePhysicsItem(force);
}

void SpringForceCommand::redo()
{
    PhysicsWorldCommand::redo();
    if (!force)
        return;
    XPropertyList::write(force, properties);
    force->setActive(true);
    selectOnly(force);
}

void SpringForceCommand::undo()
{
    if (force)
        force->setActive(false);
    PhysicsWorldCommand::undo();
}
