#include "View/GearGraphicsItem.h"

#include "Physics/GearItem.h"

GearGraphicsItem::GearGraphicsItem(double pitchCircleRadius, double toothSize,
                                   double toothCountDivisor, QGraphicsItem* parent)
    : QGraphicsPolygonItem(parent)
{
    setGear(pitchCircleRadius, toothSize, toothCountDivisor);
}

void GearGraphicsItem::setGear(double pitchCircleRadius, double toothSize, double toothCountDivisor)
{
    radius = pitchCircleRadius;
    size = toothSize;
    divisor = toothCountDivisor;
    setPolygon(gearOutline(radius, size, divisor));
}
