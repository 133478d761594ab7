#pragma once

#include "Commands/ComplexCommand.h"

#include <QBrush>
#include <QPolygonF>

// Lays a rope along points: a rectangle on each segment, as long as the segment and half as
// thick, joined to its neighbour at their shared point by a revolute joint that can hardly be
// seen, and pinned to the background at its ends as the attach point says.
class RopeCommand : public ComplexCommand
{
public:
    RopeCommand(const QPolygonF& points, int attachPoint, const QBrush& brush,
                QUndoCommand* parent = nullptr);
};
