#include "ValuePrototype.h"

#include <QScriptEngine>

ValuePrototype::ValuePrototype(QObject* parent)
    : QObject(parent)
{
}

bool ValuePrototype::indexArgument(int index, int size) const
{
    if (index >= 0 && index < size)
        return true;
    throwError(QScriptContext::RangeError,
               QStringLiteral("index %1 is out of range [0, %2)").arg(index).arg(size));
    return false;
}

QString ValuePrototype::describe(const QStringList& fields) const
{
    return QStringLiteral("%1(%2)").arg(ValueTypes::typeName(thisObject().toVariant().userType()),
                                        fields.join(QStringLiteral(", ")));
}

QStringList ValuePrototype::format(std::initializer_list<qreal> numbers)
{
    QStringList result;
    for (const qreal number : numbers)
        result.append(QString::number(number));
    return result;
}

int ValuePrototype::releaseThis()
{
    const int type = thisObject().toVariant().userType();
    engine()->newVariant(thisObject(), QVariant(type, nullptr));
    return type;
}

void ValuePrototype::writeThis(QVariant value, int type)
{
    value.convert(type);
    engine()->newVariant(thisObject(), value);
}

void ValuePrototype::throwError(QScriptContext::Error error, const QString& text) const
{
    context()->throwError(error, text);
}
