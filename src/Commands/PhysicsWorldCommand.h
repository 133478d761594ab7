#pragma once

#include "Commands/Command.h"
#include "Physics/PhysicsWorldState.h"

class PhysicsItem;

// A command whose undo is a snapshot restore: the whole world as it was just before the
// command's first redo. The snapshot holds guarded pointers, so an item that a script deleted
// meanwhile is simply left out of the restore.
class PhysicsWorldCommand : public Command
{
public:
    explicit PhysicsWorldCommand(QUndoCommand* parent = nullptr);

    void redo() override;
    void undo() override;

protected:
    // Makes the item the scene's whole selection, as a new item is shown to the user.
    static void selectOnly(PhysicsItem* item);

    PhysicsWorldState physicsWorldState;
};
