#pragma once

#include <QList>
#include <QMetaType>
#include <QRectF>
#include <QString>
#include <QVariant>

class BodyItem;
class ForceItem;
class GraphicsScene;
class JointItem;
class PhysicsItem;
class b2Body;
class QGraphicsItem;

// A list of items that does not own them, with the queries the program asks of a set of
// items. The world's own instance holds every item in creation order, active or not.
class PhysicsItemList : public QList<PhysicsItem*>
{
public:
    PhysicsItemList() = default;
    PhysicsItemList(const QList<PhysicsItem*>& items);
    // The selected items of a scene, in the scene's order.
    explicit PhysicsItemList(GraphicsScene* scene);
    // The items at a point or in a rectangle of a scene, top first. Graphics items without a
    // physics item (previews, the grid) and hidden, inactive items are left out.
    PhysicsItemList(GraphicsScene* scene, const QPointF& point);
    PhysicsItemList(GraphicsScene* scene, const QRectF& rect);
    virtual ~PhysicsItemList() = default;

    PhysicsItem* physicsItemFromName(const QString& name) const;
    PhysicsItem* physicsItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    BodyItem* bodyItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    BodyItem* bodyItemFromBody(b2Body* body) const;
    PhysicsItemList activeItems() const;
    QList<BodyItem*> bodyItems() const;
    QList<JointItem*> jointItems() const;
    // Joints whose first or second body is the argument.
    QList<JointItem*> jointList(BodyItem* pBodyItem) const;
    JointItem* jointItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    QList<ForceItem*> forceItems() const;
    // Forces whose bodies include the argument.
    QList<ForceItem*> forceList(BodyItem* pBodyItem) const;
    ForceItem* forceItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    // Joints, then forces, that hang on a body.
    PhysicsItemList dependentPhysicsItems(BodyItem* pBodyItem) const;
    // Union of the scene bounding rectangles of the active items; empty if there are none.
    QRectF boundingRect() const;
    void setSelected(bool selected) const;
    // Sets a property on each item in order and stops at the first that lacks it or refuses
    // the value; the items before keep the new value.
    bool setProperty(const QString& name, const QVariant& value) const;
};
Q_DECLARE_METATYPE(PhysicsItemList)
