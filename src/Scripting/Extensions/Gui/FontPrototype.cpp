#include "FontPrototype.h"

bool FontPrototype::fromArguments(QScriptContext* context, QFont* font)
{
    const int count = context->argumentCount();
    if (count < 1 || count > 2 || !context->argument(0).isString()
        || (count == 2 && !context->argument(1).isNumber()))
        return false;
    // QFont takes a size below 1 for the default size.
    *font
        = QFont(context->argument(0).toString(), count == 2 ? context->argument(1).toInt32() : -1);
    return true;
}

QString FontPrototype::family() const
{
    return thisValue<QFont>().family();
}

void FontPrototype::setFamily(const QString& family)
{
    changeThis<QFont>([&family](QFont& font) { font.setFamily(family); });
}

int FontPrototype::pointSize() const
{
    return thisValue<QFont>().pointSize();
}

void FontPrototype::setPointSize(int pointSize)
{
    changeThis<QFont>([pointSize](QFont& font) {
        if (pointSize > 0)
            font.setPointSize(pointSize);
    });
}

bool FontPrototype::bold() const
{
    return thisValue<QFont>().bold();
}

void FontPrototype::setBold(bool bold)
{
    changeThis<QFont>([bold](QFont& font) { font.setBold(bold); });
}

bool FontPrototype::italic() const
{
    return thisValue<QFont>().italic();
}

void FontPrototype::setItalic(bool italic)
{
    changeThis<QFont>([italic](QFont& font) { font.setItalic(italic); });
}

QString FontPrototype::toString() const
{
    const QFont font = thisValue<QFont>();
    return describe({font.family(), QString::number(font.pointSize())});
}
