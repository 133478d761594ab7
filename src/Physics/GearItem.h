#pragma once

#include "Physics/BodyItem.h"

#include <QList>
#include <QPolygonF>

class CircleGraphicsItem;
class GearGraphicsItem;

// The teeth of a gear in body coordinates, one four-point polygon each in tooth order. The
// tooth count divisor is the arc length of the pitch circle that one tooth takes up, so the
// greater it is, the fewer teeth; a tooth takes three quarters of its step, the gap the rest.
QList<QPolygonF> gearTeeth(double pitchCircleRadius, double toothSize, double toothCountDivisor);
// The points of all teeth one after the other: the outline that a gear shows.
QPolygonF gearOutline(double pitchCircleRadius, double toothSize, double toothCountDivisor);

// A gear wheel: a disc out to the root of the teeth and one four-point fixture for each
// tooth, all rebuilt whenever a size changes. The graphics item draws the gear's outline, with
// the pitch circle as a child that can be shown.
class GearItem : public BodyItem
{
    Q_OBJECT
    Q_CLASSINFO("GearItem", "Gear")
    Q_CLASSINFO("PitchCircleRadius", "singleStep=0.05;decimals=2;minimum=0.0;")
    Q_CLASSINFO("ToothSize", "singleStep=0.05;decimals=2;minimum=0.1;maximum=2.0;")
    Q_CLASSINFO("ToothCountDivisor", "singleStep=0.05;decimals=2;minimum=0.1;maximum=2.0;")
    Q_PROPERTY(bool ShowPitchCircle READ showPitchCircle WRITE setShowPitchCircle USER true)
    Q_PROPERTY(double PitchCircleRadius READ pitchCircleRadius WRITE setPitchCircleRadius USER true)
    Q_PROPERTY(double ToothSize READ toothSize WRITE setToothSize USER true)
    Q_PROPERTY(double ToothCountDivisor READ toothCountDivisor WRITE setToothCountDivisor USER true)

public:
    // theta in radians, sizes in metres.
    GearItem(double x, double y, double theta, double pitchCircleRadius, double toothSize,
             double toothCountDivisor);

    int type() const override { return GearItemType; }
    QPolygonF snapPoints() const override;
    QPolygonF worldPolygon() const override;
    // Does nothing: a gear changes its size only through its properties.
    void scale(double) override { }

    bool showPitchCircle() const { return pitchCircleShown; }
    double pitchCircleRadius() const { return radius; }
    double toothSize() const { return size; }
    double toothCountDivisor() const { return divisor; }

public slots:
    void setShowPitchCircle(bool show);
    void setPitchCircleRadius(double pitchCircleRadius);
    void setToothSize(double toothSize);
    void setToothCountDivisor(double toothCountDivisor);

private:
    // Stores a size that is new and a finite number above 0, and rebuilds.
    void setSize(double& field, double value);
    void rebuild();

    GearGraphicsItem* gearGraphicsItem;
    CircleGraphicsItem* pitchCircle;
    bool pitchCircleShown = false;
    double radius;
    double size;
    double divisor;
};
Q_DECLARE_METATYPE(GearItem*)
