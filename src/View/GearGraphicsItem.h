#pragma once

#include <QGraphicsPolygonItem>

// The outline of a gear's teeth, drawn from its pitch radius, tooth size and tooth count
// divisor (metres). Gears and the gear tool's preview show it.
class GearGraphicsItem : public QGraphicsPolygonItem
{
public:
    GearGraphicsItem(double pitchCircleRadius, double toothSize, double toothCountDivisor,
                     QGraphicsItem* parent = nullptr);

    // Sets the three sizes together and redraws; a radius of 0 gives an empty outline.
    void setGear(double pitchCircleRadius, double toothSize, double toothCountDivisor);

    double pitchCircleRadius() const { return radius; }
    double toothSize() const { return size; }
    double toothCountDivisor() const { return divisor; }

private:
    double radius;
    double size;
    double divisor;
};
