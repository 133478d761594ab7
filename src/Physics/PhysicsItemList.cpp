#include "Physics/PhysicsItemList.h"

#include "Physics/BodyItem.h"
#include "Physics/ForceItem.h"
#include "Physics/JointItem.h"
#include "Physics/PhysicsItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"

#include <QGraphicsItem>

PhysicsItemList::PhysicsItemList(const QList<PhysicsItem*>& items)
    : QList<PhysicsItem*>(items)
{
}

namespace {
void appendPhysicsItems(PhysicsItemList& list, const QList<QGraphicsItem*>& graphicsItems)
{
    const PhysicsWorld* world = PhysicsWorld::instance();
    for (QGraphicsItem* graphicsItem : graphicsItems) {
        if (PhysicsItem* item = world->physicsItemFromGraphicsItem(graphicsItem))
            list.append(item);
    }
}
} // namespace

PhysicsItemList::PhysicsItemList(GraphicsScene* scene)
{
    appendPhysicsItems(*this, scene->selectedItems());
}

PhysicsItemList::PhysicsItemList(GraphicsScene* scene, const QPointF& point)
{
    appendPhysicsItems(
        *this, scene->items(point, Qt::IntersectsItemShape, Qt::DescendingOrder, QTransform()));
}

PhysicsItemList::PhysicsItemList(GraphicsScene* scene, const QRectF& rect)
{
    appendPhysicsItems(
        *this, scene->items(rect, Qt::IntersectsItemShape, Qt::DescendingOrder, QTransform()));
}

PhysicsItem* PhysicsItemList::physicsItemFromName(const QString& name) const
{
    for (PhysicsItem* item : *this) {
        if (item->name() == name)
            return item;
    }
    return nullptr;
}

PhysicsItem* PhysicsItemList::physicsItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    for (PhysicsItem* item : *this) {
        if (item->graphicsItem() == graphicsItem)
            return item;
    }
    return nullptr;
}

BodyItem* PhysicsItemList::bodyItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    PhysicsItem* item = physicsItemFromGraphicsItem(graphicsItem);
    return item ? item->toBodyItem() : nullptr;
}

BodyItem* PhysicsItemList::bodyItemFromBody(b2Body* body) const
{
    for (PhysicsItem* item : *this) {
        BodyItem* bodyItem = item->toBodyItem();
        if (bodyItem && bodyItem->body() == body)
            return bodyItem;
    }
    return nullptr;
}

QList<BodyItem*> PhysicsItemList::bodyItems() const
{
    QList<BodyItem*> bodies;
    for (PhysicsItem* item : *this) {
        if (BodyItem* body = item->toBodyItem())
            bodies.append(body);
    }
    return bodies;
}

QList<JointItem*> PhysicsItemList::jointItems() const
{
    QList<JointItem*> joints;
    for (PhysicsItem* item : *this) {
        if (JointItem* joint = item->toJointItem())
            joints.append(joint);
    }
    return joints;
}

QList<JointItem*> PhysicsItemList::jointList(BodyItem* pBodyItem) const
{
    QList<JointItem*> joints;
    if (!pBodyItem)
        return joints;
    for (JointItem* joint : jointItems()) {
        if (joint->bodyItem1() == pBodyItem || joint->bodyItem2() == pBodyItem)
            joints.append(joint);
    }
    return joints;
}

JointItem* PhysicsItemList::jointItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    PhysicsItem* item = physicsItemFromGraphicsItem(graphicsItem);
    return item ? item->toJointItem() : nullptr;
}

QList<ForceItem*> PhysicsItemList::forceItems() const
{
    QList<ForceItem*> forces;
    for (PhysicsItem* item : *this) {
        if (ForceItem* force = item->toForceItem())
            forces.append(force);
    }
    return forces;
}

QList<ForceItem*> PhysicsItemList::forceList(BodyItem* pBodyItem) const
{
    QList<ForceItem*> forces;
    if (!pBodyItem)
        return forces;
    for (ForceItem* force : forceItems()) {
        if (force->bodyItems().contains(pBodyItem))
            forces.append(force);
    }
    return forces;
}

ForceItem* PhysicsItemList::forceItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    PhysicsItem* item = physicsItemFromGraphicsItem(graphicsItem);
    return item ? item->toForceItem() : nullptr;
}

PhysicsItemList PhysicsItemList::dependentPhysicsItems(BodyItem* pBodyItem) const
{
    PhysicsItemList dependents;
    for (JointItem* joint : jointList(pBodyItem))
        dependents.append(joint);
    for (ForceItem* force : forceList(pBodyItem))
        dependents.append(force);
    return dependents;
}

PhysicsItemList PhysicsItemList::activeItems() const
{
    PhysicsItemList active;
    for (PhysicsItem* item : *this) {
        if (item->isActive())
            active.append(item);
    }
    return active;
}

QRectF PhysicsItemList::boundingRect() const
{
    QRectF rect;
    for (PhysicsItem* item : *this) {
        if (item->isActive() && item->graphicsItem())
            rect |= item->graphicsItem()->sceneBoundingRect();
    }
    return rect;
}

void PhysicsItemList::setSelected(bool selected) const
{
    for (PhysicsItem* item : *this) {
        QGraphicsItem* graphicsItem = item->graphicsItem();
        if (graphicsItem && graphicsItem->isVisible())
            graphicsItem->setSelected(selected);
    }
}

bool PhysicsItemList::setProperty(const QString& name, const QVariant& value) const
{
    const QByteArray propertyName = name.toLatin1();
    for (PhysicsItem* item : *this) {
        if (!item->property(propertyName.constData()).isValid())
            return false;
        if (!item->QObject::setProperty(propertyName.constData(), value))
            return false;
    }
    return true;
}
