#pragma once

#include "Commands/BodyCommand.h"

#include <QPolygonF>

// Adds a polygon body of any outline, given in world coordinates.
class PolygonCommand : public BodyCommand
{
public:
    PolygonCommand(const QPolygonF& polygon, const QBrush& brush, QUndoCommand* parent = nullptr);
};
