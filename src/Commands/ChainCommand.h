#pragma once

#include "Commands/ComplexCommand.h"

#include <QBrush>
#include <QPolygonF>

// Lays a chain along points: a circle at each point, as large as the first two points are
// apart, joined to its neighbours by distance joints that can hardly be seen, and pinned to
// the background at its first, last or both ends as `attachPoint` says.
class ChainCommand : public ComplexCommand
{
public:
    // The values of the chain and rope tools' attach point.
    enum AttachPoint { First = 1, Last = 2, None = 3, Both = 4 };
    // The joints between links act but are next to invisible.
    static constexpr double linkJointOpacity = 0.01;
    // Metres: the radius a pin is made with, before it takes the size of its link.
    static constexpr double pinRadius = 0.2;

    ChainCommand(const QPolygonF& points, int attachPoint, const QBrush& brush,
                 QUndoCommand* parent = nullptr);

    static bool pinsFirst(int attachPoint) { return attachPoint == First || attachPoint == Both; }
    static bool pinsLast(int attachPoint) { return attachPoint == Last || attachPoint == Both; }
};
