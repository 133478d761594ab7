#include "View/SpringGraphicsItem.h"

#include <QPainter>
#include <QPainterPathStroker>
#include <QPen>
#include <QStyleOptionGraphicsItem>
#include <QtMath>
#include <cmath>

namespace {
// Metres: the gap between the line's ends and the zigzag, the length of one turn and its
// height, and the radius of the circles at the ends.
const double endOffset = 0.01;
const double turnLength = 0.1;
const double toothHeight = 0.1;
const double endCircleRadius = 0.02;
// A script may give any rest length: a spring has at most this many turns, and none for a
// rest length that is not a finite number.
const double maximumTurns = 10000.0;
} // namespace

SpringGraphicsItem::SpringGraphicsItem(const QLineF& line, QGraphicsItem* parent)
    : QAbstractGraphicsShapeItem(parent)
    , springRestLength(line.length())
{
    setPen(QPen(Qt::darkGray, 0.05, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    setLine(line);
}

QLineF SpringGraphicsItem::line() const
{
    return QLineF(springPoints.first(), springPoints.last());
}

void SpringGraphicsItem::setRestLength(double restLength)
{
    springRestLength = restLength;
    setLine(line());
}

void SpringGraphicsItem::setLine(const QLineF& line)
{
    prepareGeometryChange();
    const double wantedTurns = springRestLength / turnLength;
    const int turns
        = std::isfinite(wantedTurns) ? qRound(qBound(0.0, wantedTurns, maximumTurns)) : 0;
    // Unit vectors along the line and across it; a line of no length points along x.
    const double length = line.length();
    const QPointF along = length > 0.0 ? (line.p2() - line.p1()) / length : QPointF(1.0, 0.0);
    const QPointF start = line.p1() + endOffset * along;
    const QPointF span = line.p2() - endOffset * along - start;
    const double spanLength = std::hypot(span.x(), span.y());
    // A tooth stands across the line, to alternate sides; on a span of no length it has none.
    const QPointF across
        = spanLength > 0.0 ? QPointF(span.y(), -span.x()) * (toothHeight / spanLength) : QPointF();
    springPoints.resize(qMax(0, turns - 2) * 3 + 2);
    springPoints[0] = line.p1();
    for (int i = 1; i <= turns - 2; ++i) {
        const QPointF middle = start + (i + 0.5) / turns * span;
        QPointF* tooth = springPoints.data() + 3 * i - 2;
        tooth[0] = start + double(i) / turns * span;
        tooth[1] = i % 2 == 0 ? middle + across : middle - across;
        tooth[2] = start + double(i + 1) / turns * span;
    }
    springPoints.last() = line.p2();
    update();
}

QRectF SpringGraphicsItem::boundingRect() const
{
    // The end circles reach out beyond the points by their radius.
    const double margin = pen().widthF() / 2 + endCircleRadius;
    return springPoints.boundingRect().adjusted(-margin, -margin, margin, margin);
}

QPainterPath SpringGraphicsItem::shape() const
{
    QPainterPath path;
    path.addPolygon(springPoints);
    QPainterPathStroker stroker;
    stroker.setCapStyle(pen().capStyle());
    stroker.setJoinStyle(pen().joinStyle());
    stroker.setWidth(pen().widthF());
    return stroker.createStroke(path);
}

void SpringGraphicsItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    const int count = springPoints.size();
    QPen backPen = pen();
    backPen.setColor(pen().color().darker(200));
    painter->setPen(backPen);
    for (int i = 1; count > 3 && i < count - 2; i += 2)
        painter->drawLine(springPoints[i], springPoints[i + 1]);
    painter->setPen(pen());
    for (int i = 2; count > 4 && i < count - 2; i += 2)
        painter->drawLine(springPoints[i], springPoints[i + 1]);
    painter->drawLine(springPoints[0], springPoints[1]);
    painter->drawLine(springPoints[count - 2], springPoints[count - 1]);
    painter->setBrush(brush());
    const QPointF radius(endCircleRadius, endCircleRadius);
    for (const QPointF& end : {springPoints.first(), springPoints.last()})
        painter->drawEllipse(QRectF(end - radius, end + radius));
    if (option->state & QStyle::State_Selected) {
        painter->setPen(
            QPen(option->palette.text(), 0, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(boundingRect());
    }
}
