#pragma once

#include "Commands/BodyCommand.h"

// Adds a balloon; theta in radians, sizes in metres.
class BalloonCommand : public BodyCommand
{
public:
    BalloonCommand(double x, double y, double theta, double r, const QBrush& brush,
                   QUndoCommand* parent = nullptr);
};
