#pragma once

#include <QGraphicsItem>
#include <QLineF>
#include <QLinearGradient>
#include <QPolygonF>

// A long thin arrow along a line, green at its tail and red at its tip, for forces and
// velocities. The head starts at 80 percent of the line and the whole width grows with the
// length, so the arrow keeps its shape at every size. Lengths in metres.
class VectorGraphicsItem : public QGraphicsItem
{
public:
    explicit VectorGraphicsItem(const QLineF& line, QGraphicsItem* parent = nullptr);

    QLineF line() const { return vectorLine; }
    void setLine(const QLineF& line);
    // The width of the head, a fifth of the length.
    double headSize() const { return vectorHeadSize; }
    QPolygonF outline() const { return arrowOutline; }

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
               QWidget* widget = nullptr) override;

private:
    QLineF vectorLine;
    double vectorHeadSize = 0.0;
    QLinearGradient gradient;
    QPolygonF arrowOutline;
};
