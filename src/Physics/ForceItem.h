#pragma once

#include "Physics/PhysicsItem.h"

#include <QList>
#include <QPointer>

// Base of the items that are no Box2D joint but a force the program computes and applies
// itself at each step. It names the bodies it acts on, so that the world finds the forces of
// a body; it holds them guarded, since a force must never touch a body that has been deleted.
// Box2D knows nothing of a force: deactivated, it simply stops acting.
class ForceItem : public PhysicsItem
{
    Q_OBJECT
    Q_CLASSINFO("ForceItem", "Force")

public:
    explicit ForceItem(const QList<BodyItem*>& bodyItems);

    bool isActive() const override { return active; }
    void setActive(bool active) override;

    // The bodies it acts on that still exist, in order.
    Q_INVOKABLE QList<BodyItem*> bodyItems() const;

protected:
    // The body at that place of the constructor's list, or null if it is gone or was null.
    BodyItem* bodyItem(int index) const;

private:
    QList<QPointer<BodyItem>> guardedBodies;
    bool active = true;
};
Q_DECLARE_METATYPE(ForceItem*)
