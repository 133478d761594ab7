#include "View/GridGraphicsItem.h"

#include "View/CosmeticPens.h"

#include <QGraphicsLineItem>
#include <QPen>

namespace {
const double maximumLinesPerQuadrant = 4000.0;
} // namespace

GridGraphicsItem::GridGraphicsItem()
{
    rebuild(gridHalfSize, gridStep);
}

void GridGraphicsItem::rebuild(double halfSize, double step)
{
    gridHalfSize = halfSize;
    gridStep = step;
    qDeleteAll(childItems());
    // A step from a hand-edited settings file may be zero or tiny: draw no grid rather than
    // millions of lines.
    if (!(step > 0.0) || halfSize / step > maximumLinesPerQuadrant)
        return;
    const double h = halfSize;
    for (int i = 0; i * step <= h; ++i) {
        const double x = i * step;
        const QPen pen(x == 0.0 ? Qt::black : Qt::gray);
        for (const QLineF& line : {QLineF(x, -h, x, h), QLineF(-x, -h, -x, h), QLineF(-h, x, h, x),
                                   QLineF(-h, -x, h, -x)}) {
            auto* lineItem = new QGraphicsLineItem(line);
            lineItem->setPen(pen);
            addToGroup(lineItem);
        }
    }
    CosmeticPens::apply(this);
}

QPointF GridGraphicsItem::snapToGrid(const QPointF& point) const
{
    return QPointF(qRound(point.x() / gridStep) * gridStep,
                   qRound(point.y() / gridStep) * gridStep);
}
