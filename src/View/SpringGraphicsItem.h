#pragma once

#include <QAbstractGraphicsShapeItem>
#include <QLineF>
#include <QPolygonF>

// A coil spring drawn as a zigzag between the two ends of a line, with straight leads and a
// small circle at each end. The number of turns follows the rest length, not the present
// length, so a stretched spring shows wide turns and a compressed one tight turns. Its users
// keep the rest length equal to the spring's own. Lengths in metres.
class SpringGraphicsItem : public QAbstractGraphicsShapeItem
{
public:
    explicit SpringGraphicsItem(const QLineF& line, QGraphicsItem* parent = nullptr);

    QLineF line() const;
    void setLine(const QLineF& line);
    double restLength() const { return springRestLength; }
    // Lays the zigzag out anew along the present line.
    void setRestLength(double restLength);
    // The zigzag from the line's start to its end.
    QPolygonF points() const { return springPoints; }

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
               QWidget* widget = nullptr) override;

private:
    double springRestLength;
    QPolygonF springPoints;
};
