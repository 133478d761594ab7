#pragma once

#include "Commands/BodyCommand.h"

// Adds a circle; theta in radians, sizes in metres.
class CircleCommand : public BodyCommand
{
public:
    CircleCommand(double x, double y, double theta, double r, const QBrush& brush,
                  QUndoCommand* parent = nullptr);
};
