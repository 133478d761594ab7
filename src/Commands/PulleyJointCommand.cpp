#include "Commands/PulleyJointCommand.h"

#include "Physics/PulleyJoint.h"

#include <QObject>

PulleyJointCommand::PulleyJointCommand(BodyItem* item1, BodyItem* item2, const QPolygonF& polygon,
                                       QUndoCommand* parent)
    : JointCommand(new PulleyJoint(item1, item2, polygon), QObject::tr("Pulley Joint"), parent)
{
}
