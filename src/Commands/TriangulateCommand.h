#pragma once

#include "Commands/ExplodeCommand.h"

// Explodes a body into the triangles of its outline, as polygon bodies.
class TriangulateCommand : public ExplodeCommand
{
public:
    TriangulateCommand(BodyItem* body, QUndoCommand* parent = nullptr);
};
