#include "ColorPrototype.h"

#include <algorithm>

bool ColorPrototype::fromLiteral(const QScriptValue& value, QColor* color)
{
    if (!value.isString() || !QColor::isValidColor(value.toString()))
        return false;
    color->setNamedColor(value.toString());
    return true;
}

bool ColorPrototype::fromArguments(QScriptContext* context, QColor* color)
{
    const QVector<qreal> components = ValueTypes::numbers(context);
    // Written so that NaN fails too.
    const auto inRange = [](qreal component) { return component >= 0 && component <= 255; };
    if (components.size() < 3 || components.size() > 4
        || !std::all_of(components.begin(), components.end(), inRange))
        return false;
    *color = QColor(qRound(components[0]), qRound(components[1]), qRound(components[2]),
                    qRound(components.value(3, 255)));
    return true;
}

QString ColorPrototype::nameOf(const QColor& color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

int ColorPrototype::red() const
{
    return thisValue<QColor>().red();
}

int ColorPrototype::green() const
{
    return thisValue<QColor>().green();
}

int ColorPrototype::blue() const
{
    return thisValue<QColor>().blue();
}

int ColorPrototype::alpha() const
{
    return thisValue<QColor>().alpha();
}

void ColorPrototype::setRed(int red)
{
    changeThis<QColor>([red](QColor& color) { color.setRed(qBound(0, red, 255)); });
}

void ColorPrototype::setGreen(int green)
{
    changeThis<QColor>([green](QColor& color) { color.setGreen(qBound(0, green, 255)); });
}

void ColorPrototype::setBlue(int blue)
{
    changeThis<QColor>([blue](QColor& color) { color.setBlue(qBound(0, blue, 255)); });
}

void ColorPrototype::setAlpha(int alpha)
{
    changeThis<QColor>([alpha](QColor& color) { color.setAlpha(qBound(0, alpha, 255)); });
}

QString ColorPrototype::name() const
{
    return thisValue<QColor>().name();
}

bool ColorPrototype::isValid() const
{
    return thisValue<QColor>().isValid();
}

QColor ColorPrototype::lighter(int factor) const
{
    return thisValue<QColor>().lighter(factor);
}

QColor ColorPrototype::darker(int factor) const
{
    return thisValue<QColor>().darker(factor);
}

QString ColorPrototype::toString() const
{
    const QColor color = thisValue<QColor>();
    return color.isValid() ? describe({nameOf(color)}) : describe({});
}
