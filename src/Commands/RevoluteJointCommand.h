#pragma once

#include "Commands/JointCommand.h"

#include <QPointF>

class BodyItem;

// Adds a revolute joint; a null second body joins the first to the background.
class RevoluteJointCommand : public JointCommand
{
public:
    RevoluteJointCommand(BodyItem* item1, BodyItem* item2, const QPointF& p, double radius,
                         QUndoCommand* parent = nullptr);
};
