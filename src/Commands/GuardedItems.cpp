#include "Commands/GuardedItems.h"

#include "Physics/PhysicsItem.h"
#include "Physics/PhysicsWorld.h"

GuardedItems::GuardedItems(const PhysicsItemList& items)
{
    for (PhysicsItem* item : items)
        append(item);
}

void GuardedItems::append(PhysicsItem* item)
{
    guarded.append(QPointer<PhysicsItem>(item));
}

bool GuardedItems::contains(PhysicsItem* item) const
{
    for (const QPointer<PhysicsItem>& entry : guarded) {
        if (entry.data() == item)
            return true;
    }
    return false;
}

PhysicsItemList GuardedItems::items() const
{
    PhysicsItemList live;
    for (const QPointer<PhysicsItem>& entry : guarded) {
        if (entry)
            live.append(entry.data());
    }
    return live;
}

void GuardedItems::setActive(bool active) const
{
    for (PhysicsItem* item : items())
        item->setActive(active);
}

void GuardedItems::removeFromWorld() const
{
    // Removing a body takes its joints and forces along, so check each one anew.
    for (const QPointer<PhysicsItem>& entry : guarded) {
        if (entry)
            PhysicsWorld::instance()->removePhysicsItem(entry.data());
    }
}
