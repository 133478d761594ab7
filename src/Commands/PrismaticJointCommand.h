#pragma once

#include "Commands/JointCommand.h"

#include <QLineF>

class BodyItem;

// Adds a prismatic joint; a null second body joins the first to the background.
class PrismaticJointCommand : public JointCommand
{
public:
    PrismaticJointCommand(BodyItem* item1, BodyItem* item2, const QLineF& line1,
                          const QLineF& line2, QUndoCommand* parent = nullptr);
};
