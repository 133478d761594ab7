#include "Commands/RevoluteJointCommand.h"

#include "Physics/RevoluteJoint.h"

#include <QObject>

RevoluteJointCommand::RevoluteJointCommand(BodyItem* item1, BodyItem* item2, const QPointF& p,
                                           double radius, QUndoCommand* parent)
    : JointCommand(new RevoluteJoint(item1, item2, p, radius), QObject::tr("Revolute Joint"),
                   parent)
{
}
