#pragma once

#include "Commands/BodyCommand.h"

// Adds a rectangle; theta in radians, sizes in metres.
class RectangleCommand : public BodyCommand
{
public:
    RectangleCommand(double x, double y, double theta, double w, double h, const QBrush& brush,
                     QUndoCommand* parent = nullptr);
};
