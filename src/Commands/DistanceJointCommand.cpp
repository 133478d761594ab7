#include "Commands/DistanceJointCommand.h"

#include "Physics/DistanceJoint.h"

#include <QObject>

DistanceJointCommand::DistanceJointCommand(BodyItem* item1, BodyItem* item2, const QPointF& p1,
                                           const QPointF& p2, QUndoCommand* parent)
    : JointCommand(new DistanceJoint(item1, item2, QLineF(p1, p2)), QObject::tr("Distance Joint"),
                   parent)
{
}
