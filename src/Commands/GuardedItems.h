#pragma once

#include "Physics/PhysicsItemList.h"

#include <QList>
#include <QPointer>

// The items a command refers to, guarded: a script may delete any of them while the command
// waits on the stack, and the command then simply skips it.
class GuardedItems
{
public:
    GuardedItems() = default;
    GuardedItems(const PhysicsItemList& items);

    void append(PhysicsItem* item);
    bool contains(PhysicsItem* item) const;
    // The items that still exist, in order.
    PhysicsItemList items() const;
    void setActive(bool active) const;
    // Deletes the items that still exist from the world.
    void removeFromWorld() const;

private:
    QList<QPointer<PhysicsItem>> guarded;
};
