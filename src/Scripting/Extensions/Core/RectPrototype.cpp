#include "RectPrototype.h"

#include "PointPrototype.h"
#include "SizePrototype.h"

bool RectPrototype::fromArguments(QScriptContext* context, QRectF* rect)
{
    const QVector<qreal> coordinates = ValueTypes::numbers(context);
    if (coordinates.size() == 4) {
        *rect = QRectF(coordinates[0], coordinates[1], coordinates[2], coordinates[3]);
        return true;
    }
    QPointF topLeft;
    if (context->argumentCount() != 2 || !ValueTypes::read(context->argument(0), &topLeft))
        return false;
    QSizeF size;
    QPointF bottomRight;
    if (ValueTypes::read(context->argument(1), &size))
        *rect = QRectF(topLeft, size);
    else if (ValueTypes::read(context->argument(1), &bottomRight))
        *rect = QRectF(topLeft, bottomRight);
    else
        return false;
    return true;
}

qreal RectPrototype::x() const
{
    return thisValue<QRectF>().x();
}

qreal RectPrototype::y() const
{
    return thisValue<QRectF>().y();
}

qreal RectPrototype::width() const
{
    return thisValue<QRectF>().width();
}

qreal RectPrototype::height() const
{
    return thisValue<QRectF>().height();
}

qreal RectPrototype::right() const
{
    return thisValue<QRectF>().right();
}

qreal RectPrototype::bottom() const
{
    return thisValue<QRectF>().bottom();
}

QPointF RectPrototype::center() const
{
    return thisValue<QRectF>().center();
}

QPointF RectPrototype::topLeft() const
{
    return thisValue<QRectF>().topLeft();
}

QPointF RectPrototype::bottomRight() const
{
    return thisValue<QRectF>().bottomRight();
}

QSizeF RectPrototype::size() const
{
    return thisValue<QRectF>().size();
}

bool RectPrototype::isEmpty() const
{
    return thisValue<QRectF>().isEmpty();
}

bool RectPrototype::contains(const QScriptValue& point) const
{
    QPointF p;
    return argument<PointPrototype>(point, &p) && thisValue<QRectF>().contains(p);
}

void RectPrototype::setWidth(qreal width)
{
    changeThis<QRectF>([width](QRectF& rect) { rect.setWidth(width); });
}

void RectPrototype::setHeight(qreal height)
{
    changeThis<QRectF>([height](QRectF& rect) { rect.setHeight(height); });
}

void RectPrototype::moveTo(qreal x, qreal y)
{
    changeThis<QRectF>([x, y](QRectF& rect) { rect.moveTo(x, y); });
}

void RectPrototype::moveCenter(const QScriptValue& point)
{
    QPointF center;
    if (argument<PointPrototype>(point, &center))
        changeThis<QRectF>([center](QRectF& rect) { rect.moveCenter(center); });
}

QString RectPrototype::toString() const
{
    const QRectF rect = thisValue<QRectF>();
    return describe(format({rect.x(), rect.y(), rect.width(), rect.height()}));
}
