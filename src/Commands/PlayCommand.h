#pragma once

#include "Commands/PhysicsWorldCommand.h"

// Starts the simulation; undoing it stops the world and rewinds the scene to the moment
// before it started.
class PlayCommand : public PhysicsWorldCommand
{
public:
    explicit PlayCommand(QUndoCommand* parent = nullptr);

    void redo() override;
    void undo() override;
};
