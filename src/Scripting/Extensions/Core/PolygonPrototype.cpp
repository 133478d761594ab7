#include "PolygonPrototype.h"

#include "PointPrototype.h"

bool PolygonPrototype::fromLiteral(const QScriptValue& value, QPolygonF* polygon)
{
    if (!value.isArray())
        return false;
    // No reserve(): a sparse array may claim a huge length, and its first hole ends the loop.
    const quint32 length = value.property(QStringLiteral("length")).toUInt32();
    QPolygonF points;
    for (quint32 index = 0; index < length; ++index) {
        QPointF point;
        if (!ValueTypes::read(value.property(index), &point))
            return false;
        points.append(point);
    }
    *polygon = points;
    return true;
}

void PolygonPrototype::append(const QScriptValue& point)
{
    QPointF p;
    if (argument<PointPrototype>(point, &p))
        changeThis<QPolygonF>([p](QPolygonF& polygon) { polygon.append(p); });
}

int PolygonPrototype::size() const
{
    return thisValue<QPolygonF>().size();
}

QPointF PolygonPrototype::at(int index) const
{
    QPolygonF polygon;
    return readThis(&polygon) && indexArgument(index, polygon.size()) ? polygon.at(index)
                                                                      : QPointF();
}

bool PolygonPrototype::isEmpty() const
{
    return thisValue<QPolygonF>().isEmpty();
}

void PolygonPrototype::clear()
{
    changeThis<QPolygonF>([](QPolygonF& polygon) { polygon.clear(); });
}

QRectF PolygonPrototype::boundingRect() const
{
    return thisValue<QPolygonF>().boundingRect();
}

bool PolygonPrototype::containsPoint(const QScriptValue& point) const
{
    QPointF p;
    return argument<PointPrototype>(point, &p)
        && thisValue<QPolygonF>().containsPoint(p, Qt::OddEvenFill);
}

QString PolygonPrototype::toString() const
{
    QStringList points;
    for (const QPointF& point : thisValue<QPolygonF>())
        points.append(
            QStringLiteral("(%1)").arg(format({point.x(), point.y()}).join(QStringLiteral(", "))));
    return describe(points);
}
