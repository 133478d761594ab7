#include "SizePrototype.h"

bool SizePrototype::fromArguments(QScriptContext* context, QSizeF* size)
{
    const QVector<qreal> widthHeight = ValueTypes::numbers(context);
    if (widthHeight.size() != 2)
        return false;
    *size = QSizeF(widthHeight[0], widthHeight[1]);
    return true;
}

qreal SizePrototype::width() const
{
    return thisValue<QSizeF>().width();
}

qreal SizePrototype::height() const
{
    return thisValue<QSizeF>().height();
}

void SizePrototype::setWidth(qreal width)
{
    changeThis<QSizeF>([width](QSizeF& size) { size.setWidth(width); });
}

void SizePrototype::setHeight(qreal height)
{
    changeThis<QSizeF>([height](QSizeF& size) { size.setHeight(height); });
}

bool SizePrototype::isEmpty() const
{
    return thisValue<QSizeF>().isEmpty();
}

QString SizePrototype::toString() const
{
    const QSizeF size = thisValue<QSizeF>();
    return describe(format({size.width(), size.height()}));
}
