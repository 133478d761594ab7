#pragma once

#include "Commands/ExplodeCommand.h"

// Explodes a body into unrotated squares of a given side on a grid over its outline, as
// rectangle bodies; squares with a corner inside count, so they overhang the outline.
class SquarifyCommand : public ExplodeCommand
{
public:
    // `size` in metres.
    SquarifyCommand(BodyItem* body, double size, QUndoCommand* parent = nullptr);
};
