#pragma once

#include <QGraphicsItemGroup>

// The grid of the view: lines every `step` metres out to `halfSize` metres from the origin,
// the axes black and the rest grey. It is also the rule of grid snapping.
class GridGraphicsItem : public QGraphicsItemGroup
{
public:
    GridGraphicsItem();

    // Replaces the lines by those of a new size and step (metres).
    void rebuild(double halfSize, double step);
    // The nearest grid point; halves round up.
    QPointF snapToGrid(const QPointF& point) const;

    double halfSize() const { return gridHalfSize; }
    double step() const { return gridStep; }

private:
    double gridHalfSize = 200.0;
    double gridStep = 2.0;
};
