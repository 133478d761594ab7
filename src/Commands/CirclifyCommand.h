#pragma once

#include "Commands/ExplodeCommand.h"

// Explodes a body into circles of a given diameter, one in each square of the grid that
// SquarifyCommand would use; they touch at the middles of the squares' sides.
class CirclifyCommand : public ExplodeCommand
{
public:
    // `size` in metres: the diameter.
    CirclifyCommand(BodyItem* body, double size, QUndoCommand* parent = nullptr);
};
