#pragma once

#include "Commands/BodyCommand.h"

// Adds a gear; theta in radians, the pitch circle radius and the tooth size in metres, the
// tooth count divisor the arc length of the pitch circle that one tooth takes up. item() is
// the new gear, for a joint on its axle.
class GearCommand : public BodyCommand
{
public:
    GearCommand(double x, double y, double theta, double r, double toothSize,
                double toothCountDivisor, const QBrush& brush, QUndoCommand* parent = nullptr);
};
