#include "View/VectorGraphicsItem.h"

#include <QPainter>
#include <cmath>

namespace {
// The float values of 2 pi and pi, as the outline has always been computed with.
const double twoPi = 6.2831855;
const double pi = 3.1415927410125732;
} // namespace

VectorGraphicsItem::VectorGraphicsItem(const QLineF& line, QGraphicsItem* parent)
    : QGraphicsItem(parent)
{
    gradient.setColorAt(0.0, Qt::green);
    gradient.setColorAt(0.5, Qt::yellow);
    gradient.setColorAt(1.0, Qt::red);
    setLine(line);
}

void VectorGraphicsItem::setLine(const QLineF& line)
{
    prepareGeometryChange();
    vectorLine = line;
    const double length = line.length();
    vectorHeadSize = 0.2 * length;
    arrowOutline.clear();
    if (length == 0.0)
        return;
    // a is the direction of the line measured so that (sin a, cos a) stands across it. The
    // cosine is bounded since the rounded length may come out a hair shorter than |dx|.
    double a = std::acos(qBound(-1.0, (line.x2() - line.x1()) / length, 1.0));
    if (line.y2() - line.y1() >= 0.0)
        a = twoPi - a;
    const double b = a - pi;
    const QPointF headBase = line.pointAt(0.8);
    const double h = vectorHeadSize;
    arrowOutline << line.p1() << headBase + 0.25 * h * QPointF(std::sin(a), std::cos(a))
                 << headBase + 0.5 * h * QPointF(std::sin(a), std::cos(a)) << line.p2()
                 << headBase + 0.5 * h * QPointF(std::sin(b), std::cos(b))
                 << headBase + 0.25 * h * QPointF(std::sin(b), std::cos(b));
}

QRectF VectorGraphicsItem::boundingRect() const
{
    return arrowOutline.boundingRect();
}

void VectorGraphicsItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    gradient.setStart(vectorLine.p1());
    gradient.setFinalStop(vectorLine.p2());
    painter->setPen(QPen(Qt::black, 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(gradient);
    painter->drawPolygon(arrowOutline, Qt::OddEvenFill);
}
