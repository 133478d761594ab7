#include "BrushPrototype.h"

#include "ColorPrototype.h"

bool BrushPrototype::fromLiteral(const QScriptValue& value, QBrush* brush)
{
    QColor color;
    if (!ValueTypes::readValue<ColorPrototype>(value, &color))
        return false;
    *brush = QBrush(color);
    return true;
}

bool BrushPrototype::fromArguments(QScriptContext* context, QBrush* brush)
{
    QColor color;
    Qt::BrushStyle style;
    if (context->argumentCount() != 2
        || !ValueTypes::readValue<ColorPrototype>(context->argument(0), &color)
        || !ValueTypes::readEnum(context->argument(1), &style))
        return false;
    *brush = QBrush(color, style);
    return true;
}

QColor BrushPrototype::color() const
{
    return thisValue<QBrush>().color();
}

void BrushPrototype::setColor(const QScriptValue& color)
{
    QColor c;
    if (argument<ColorPrototype>(color, &c))
        changeThis<QBrush>([c](QBrush& brush) { brush.setColor(c); });
}

int BrushPrototype::style() const
{
    return thisValue<QBrush>().style();
}

void BrushPrototype::setStyle(const QScriptValue& style)
{
    Qt::BrushStyle s;
    if (enumArgument(style, &s))
        changeThis<QBrush>([s](QBrush& brush) { brush.setStyle(s); });
}

bool BrushPrototype::isOpaque() const
{
    return thisValue<QBrush>().isOpaque();
}

QString BrushPrototype::toString() const
{
    const QBrush brush = thisValue<QBrush>();
    return describe(
        {ColorPrototype::nameOf(brush.color()),
         QLatin1String(QMetaEnum::fromType<Qt::BrushStyle>().valueToKey(brush.style()))});
}
