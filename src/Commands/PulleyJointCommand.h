#pragma once

#include "Commands/JointCommand.h"

#include <QPolygonF>

class BodyItem;

// Adds a pulley joint; a null second body joins the first to the background.
class PulleyJointCommand : public JointCommand
{
public:
    PulleyJointCommand(BodyItem* item1, BodyItem* item2, const QPolygonF& polygon,
                       QUndoCommand* parent = nullptr);
};
