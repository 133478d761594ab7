#pragma once

#include <QGraphicsEllipseItem>
#include <QList>

// The picture of a revolute joint: a ring (this item's own brush, which shows whether the
// motor runs) round a grey disc with four dots that make the joint's turning visible. The disc
// and the dots are children; radii in metres.
class RevoluteJointGraphicsItem : public QGraphicsEllipseItem
{
public:
    explicit RevoluteJointGraphicsItem(double radius, QGraphicsItem* parent = nullptr);

    double radius() const { return rect().width() / 2.0; }
    void setRadius(double radius);

private:
    QGraphicsEllipseItem* disc;
    QList<QGraphicsEllipseItem*> dots;
};
