#include "Commands/LinearImpulseCommand.h"

#include "Physics/BodyItem.h"

#include <QObject>

LinearImpulseCommand::LinearImpulseCommand(BodyItem* body, const QLineF& impulse,
                                           QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
    , body(body)
    , impulse(impulse)
{
    setText(QObject::tr("Linear Impulse"));
}

void LinearImpulseCommand::redo()
{
    PhysicsWorldCommand::redo();
    if (!body)
        return;
    body->setBullet(true);
    body->body()->ApplyLinearImpulse(b2Vec2(float(impulse.dx()), float(impulse.dy())),
                                     b2Vec2(float(impulse.x1()), float(impulse.y1())), true);
}
