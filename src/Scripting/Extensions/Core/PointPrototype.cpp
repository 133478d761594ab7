#include "PointPrototype.h"

bool PointPrototype::fromArguments(QScriptContext* context, QPointF* point)
{
    const QVector<qreal> xy = ValueTypes::numbers(context);
    if (xy.size() != 2)
        return false;
    *point = QPointF(xy[0], xy[1]);
    return true;
}

qreal PointPrototype::x() const
{
    return thisValue<QPointF>().x();
}

qreal PointPrototype::y() const
{
    return thisValue<QPointF>().y();
}

void PointPrototype::setX(qreal x)
{
    changeThis<QPointF>([x](QPointF& point) { point.setX(x); });
}

void PointPrototype::setY(qreal y)
{
    changeThis<QPointF>([y](QPointF& point) { point.setY(y); });
}

bool PointPrototype::isNull() const
{
    return thisValue<QPointF>().isNull();
}

qreal PointPrototype::manhattanLength() const
{
    return thisValue<QPointF>().manhattanLength();
}

QString PointPrototype::toString() const
{
    const QPointF point = thisValue<QPointF>();
    return describe(format({point.x(), point.y()}));
}
