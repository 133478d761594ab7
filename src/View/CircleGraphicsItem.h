#pragma once

#include <QGraphicsEllipseItem>
#include <QPolygonF>

// A disc drawn as a polygon of as many sides as its size on screen needs, kept until the
// radius or that need changes, with a spoke from the centre that shows its rotation. Painting
// an ellipse flattens its curves anew at every paint, which dominates a scene of many discs.
class CircleGraphicsItem : public QGraphicsEllipseItem
{
public:
    explicit CircleGraphicsItem(double radius, QGraphicsItem* parent = nullptr);

    void setRadius(double radius);
    bool isSpokeVisible() const { return spokeVisible; }
    void setSpokeVisible(bool visible);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
               QWidget* widget = nullptr) override;

private:
    double radius;
    bool spokeVisible = true;
    QPolygonF outline;
};
