#include "View/GraphicsScene.h"

#include "Physics/BodyItem.h"
#include "Physics/PhysicsItemList.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsView.h"

#include <QGraphicsItem>
#include <QLineF>
#include <cmath>

namespace {
// Farther than any snap distance a user can set.
const double noSnapDistance = 100000.0;
} // namespace

GraphicsScene::GraphicsScene(PhysicsWorld* world)
    : QGraphicsScene(world)
    , world(world)
{
    setItemIndexMethod(QGraphicsScene::NoIndex);
    connect(this, &QGraphicsScene::selectionChanged, this, &GraphicsScene::onSelectionChanged);
}

double GraphicsScene::pixelSize() const
{
    double pixelsPerMetre = 0.0;
    for (const QGraphicsView* view : views())
        pixelsPerMetre = qMax(pixelsPerMetre, std::abs(view->transform().m11()));
    return 1.0 / (pixelsPerMetre > 0.0 ? pixelsPerMetre : GraphicsView::initialScale);
}

PhysicsItem* GraphicsScene::physicsItemAt(const QPointF& point)
{
    const PhysicsItemList found(this, point);
    return found.isEmpty() ? nullptr : found.first();
}

QList<BodyItem*> GraphicsScene::bodyItemsAt(const QPointF& point)
{
    return PhysicsItemList(this, point).bodyItems();
}

BodyItem* GraphicsScene::bodyItemAt(const QPointF& point)
{
    const QList<BodyItem*> bodies = bodyItemsAt(point);
    return bodies.isEmpty() ? nullptr : bodies.first();
}

bool GraphicsScene::snapPoint(const QPointF& point, double distance, QPointF& snapped)
{
    const QRectF area(point.x() - distance, point.y() - distance, 2 * distance, 2 * distance);
    bool found = false;
    double bestDistance = noSnapDistance;
    QPointF best;
    for (PhysicsItem* item : PhysicsItemList(this, area)) {
        const QTransform toScene = item->graphicsItem()->sceneTransform();
        for (const QPointF& local : item->snapPoints()) {
            const QPointF candidate = toScene.map(local);
            const double length = QLineF(point, candidate).length();
            // Strict, so that of equally near points the first found, the higher, stays.
            if (length < bestDistance) {
                found = true;
                bestDistance = length;
                best = candidate;
            }
        }
    }
    if (!found || !(bestDistance < distance))
        return false;
    snapped = best;
    return true;
}

void GraphicsScene::onSelectionChanged()
{
    // Several selected items report null: panels then show nothing in particular.
    const QList<QGraphicsItem*> selected = selectedItems();
    PhysicsItem* item
        = selected.size() == 1 ? world->physicsItemFromGraphicsItem(selected.first()) : nullptr;
    emit selectionChanged(item);
}
