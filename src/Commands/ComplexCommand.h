#pragma once

#include "Commands/GuardedItems.h"
#include "Commands/PhysicsWorldCommand.h"
#include "General/XPropertyList.h"

// Base of the commands that make several items in one gesture (chains, ropes, texts, pieces
// of a cut). It owns the new items: they are kept with their values as built, activated by
// redo, deactivated by undo and removed from the world when the command dies.
class ComplexCommand : public PhysicsWorldCommand
{
public:
    ~ComplexCommand() override;

    void redo() override;
    void undo() override;

    PhysicsItemList items() const { return newItems.items(); }

protected:
    ComplexCommand(const QString& text, QUndoCommand* parent);

    // Records a new item, already in the world, with its values as they are now; it stays
    // inactive until the first redo.
    void addItem(PhysicsItem* item);

private:
    GuardedItems newItems;
    QList<XPropertyList> properties;
};
