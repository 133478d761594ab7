#pragma once

#include "Physics/PhysicsItemList.h"

#include <QList>

// The items of a list that are of one class, in order: the links, joints or pieces that a
// command made.
template<typename Item> QList<Item*> itemsOf(const PhysicsItemList& items)
{
    QList<Item*> found;
    for (PhysicsItem* item : items) {
        if (auto* typed = qobject_cast<Item*>(item))
            found.append(typed);
    }
    return found;
}
