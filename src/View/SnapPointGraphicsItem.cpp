#include "View/SnapPointGraphicsItem.h"

#include <QBrush>
#include <QPen>

SnapPointGraphicsItem::SnapPointGraphicsItem()
    : QGraphicsRectItem(-0.1, -0.1, 0.2, 0.2)
{
    setBrush(QBrush(Qt::blue, Qt::SolidPattern));
    QPen pen;
    pen.setCosmetic(true);
    setPen(pen);
    setOpacity(0.5);
    setZValue(10000000);
}
