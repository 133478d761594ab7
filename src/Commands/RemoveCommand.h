#pragma once

#include "Commands/GuardedItems.h"
#include "Commands/PhysicsWorldCommand.h"

#include <QRectF>

// Takes items away: the item at a point (an empty rectangle) or the items in a rectangle,
// with the joints and forces that hang on the bodies among them. The items stay in the
// world, inactive, until a new scene clears it.
class RemoveCommand : public PhysicsWorldCommand
{
public:
    explicit RemoveCommand(const QRectF& rect, QUndoCommand* parent = nullptr);

    void redo() override;
    void undo() override;

    PhysicsItemList items() const { return removedItems.items(); }

private:
    GuardedItems removedItems;
};
