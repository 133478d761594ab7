#include "Commands/PrismaticJointCommand.h"

#include "Physics/PrismaticJoint.h"

#include <QObject>

PrismaticJointCommand::PrismaticJointCommand(BodyItem* item1, BodyItem* item2, const QLineF& line1,
                                             const QLineF& line2, QUndoCommand* parent)
    : JointCommand(new PrismaticJoint(item1, item2, line1, line2), QObject::tr("Prismatic Joint"),
                   parent)
{
}
