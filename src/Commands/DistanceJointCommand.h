#pragma once

#include "Commands/JointCommand.h"

#include <QPointF>

class BodyItem;

// Adds a distance joint; a null second body joins the first to the background.
class DistanceJointCommand : public JointCommand
{
public:
    DistanceJointCommand(BodyItem* item1, BodyItem* item2, const QPointF& p1, const QPointF& p2,
                         QUndoCommand* parent = nullptr);
};
