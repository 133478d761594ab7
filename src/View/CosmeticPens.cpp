#include "View/CosmeticPens.h"

#include <QAbstractGraphicsShapeItem>
#include <QGraphicsLineItem>
#include <QPen>

namespace {
// One pixel at every zoom, written as width 0: shapes and bounding rectangles add the pen width
// in item units, metres here, even for a cosmetic pen, so Qt's default width of 1 would widen
// every hit area and bounding box by half a metre on each side.
QPen cosmetic(QPen pen)
{
    pen.setCosmetic(true);
    pen.setWidth(0);
    return pen;
}
} // namespace

void CosmeticPens::apply(QGraphicsItem* item)
{
    if (auto* shape = dynamic_cast<QAbstractGraphicsShapeItem*>(item))
        shape->setPen(cosmetic(shape->pen()));
    else if (auto* line = dynamic_cast<QGraphicsLineItem*>(item))
        line->setPen(cosmetic(line->pen()));
    for (QGraphicsItem* child : item->childItems())
        apply(child);
}
