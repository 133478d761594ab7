#pragma once

#include "Physics/BodyItem.h"

class CircleGraphicsItem;

// A disc with a spoke that makes its rotation visible.
class CircleItem : public BodyItem
{
    Q_OBJECT
    Q_CLASSINFO("CircleItem", "Circle")
    Q_CLASSINFO("Radius", "singleStep=1.0;minimum=0.1;")
    Q_PROPERTY(double Radius READ radius WRITE setRadius USER true)
    Q_PROPERTY(bool ShowLine READ showLine WRITE setShowLine USER true)

public:
    // theta in radians, r in metres.
    CircleItem(double x, double y, double theta, double r);

    int type() const override { return CircleItemType; }
    QPolygonF snapPoints() const override;
    QPolygonF worldPolygon() const override;
    void scale(double factor) override;

    double radius() const { return circleRadius; }
    bool showLine() const;

public slots:
    void setRadius(double r);
    void setShowLine(bool show);

private:
    CircleGraphicsItem* circleGraphicsItem;
    double circleRadius;
};
Q_DECLARE_METATYPE(CircleItem*)
