#pragma once

// Complete, so that the selection signal can be connected with member pointers.
#include "Physics/PhysicsItem.h"

#include <QGraphicsScene>

class BodyItem;
class PhysicsWorld;

// The graphics scene of the world. Its hit tests and its selection signal speak of physics
// items, so tools and panels need not know graphics items; graphics items that belong to no
// physics item (tool previews, the grid, the snap marker, parts of an item) are passed over.
// It keeps no index: nearly every item moves at every step.
class GraphicsScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit GraphicsScene(PhysicsWorld* world);

    // The topmost physics item whose shape contains the point, or null.
    PhysicsItem* physicsItemAt(const QPointF& point);
    // The bodies whose shapes contain the point, top first. Joints and forces drawn over a
    // body never hide it.
    QList<BodyItem*> bodyItemsAt(const QPointF& point);
    BodyItem* bodyItemAt(const QPointF& point);
    // The snap point of an item nearest to `point` and strictly closer than `distance`
    // (metres). On success it is written to `snapped`; otherwise `snapped` is left alone. Of
    // equally near points the one of the higher item wins.
    bool snapPoint(const QPointF& point, double distance, QPointF& snapped);
    // Metres per pixel in the view that shows the scene largest; without a view, at the scale
    // that a new view starts with.
    double pixelSize() const;

signals:
    void selectionChanged(PhysicsItem* pSelectedPhysicsItem);

private slots:
    void onSelectionChanged();

private:
    PhysicsWorld* world;
};
