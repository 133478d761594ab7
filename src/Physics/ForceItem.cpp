#include "Physics/ForceItem.h"

#include "Physics/BodyItem.h"

#include <QGraphicsItem>

ForceItem::ForceItem(const QList<BodyItem*>& bodyItems)
{
    for (BodyItem* body : bodyItems)
        guardedBodies.append(body);
}

void ForceItem::setActive(bool active)
{
    this->active = active;
    pGraphicsItem->setVisible(active);
}

QList<BodyItem*> ForceItem::bodyItems() const
{
    QList<BodyItem*> bodies;
    for (const QPointer<BodyItem>& body : guardedBodies) {
        if (body)
            bodies.append(body);
    }
    return bodies;
}

BodyItem* ForceItem::bodyItem(int index) const
{
    // Without copying the guard, which costs two atomic operations at each spring's step.
    return index >= 0 && index < guardedBodies.size() ? guardedBodies.at(index).data() : nullptr;
}
