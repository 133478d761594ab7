#include "LinePrototype.h"

#include "PointPrototype.h"

bool LinePrototype::fromArguments(QScriptContext* context, QLineF* line)
{
    const QVector<qreal> coordinates = ValueTypes::numbers(context);
    if (coordinates.size() == 4) {
        *line = QLineF(coordinates[0], coordinates[1], coordinates[2], coordinates[3]);
        return true;
    }
    QPointF p1;
    QPointF p2;
    if (context->argumentCount() != 2 || !ValueTypes::read(context->argument(0), &p1)
        || !ValueTypes::read(context->argument(1), &p2))
        return false;
    *line = QLineF(p1, p2);
    return true;
}

QPointF LinePrototype::p1() const
{
    return thisValue<QLineF>().p1();
}

QPointF LinePrototype::p2() const
{
    return thisValue<QLineF>().p2();
}

void LinePrototype::setP1(const QScriptValue& point)
{
    QPointF p1;
    if (argument<PointPrototype>(point, &p1))
        changeThis<QLineF>([p1](QLineF& line) { line.setP1(p1); });
}

void LinePrototype::setP2(const QScriptValue& point)
{
    QPointF p2;
    if (argument<PointPrototype>(point, &p2))
        changeThis<QLineF>([p2](QLineF& line) { line.setP2(p2); });
}

qreal LinePrototype::x1() const
{
    return thisValue<QLineF>().x1();
}

qreal LinePrototype::y1() const
{
    return thisValue<QLineF>().y1();
}

qreal LinePrototype::x2() const
{
    return thisValue<QLineF>().x2();
}

qreal LinePrototype::y2() const
{
    return thisValue<QLineF>().y2();
}

qreal LinePrototype::dx() const
{
    return thisValue<QLineF>().dx();
}

qreal LinePrototype::dy() const
{
    return thisValue<QLineF>().dy();
}

qreal LinePrototype::length() const
{
    return thisValue<QLineF>().length();
}

qreal LinePrototype::angle() const
{
    return thisValue<QLineF>().angle();
}

QPointF LinePrototype::pointAt(qreal t) const
{
    return thisValue<QLineF>().pointAt(t);
}

QString LinePrototype::toString() const
{
    const QLineF line = thisValue<QLineF>();
    return describe(format({line.x1(), line.y1(), line.x2(), line.y2()}));
}
