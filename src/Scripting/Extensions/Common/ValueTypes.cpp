#include "ValueTypes.h"

namespace ValueTypes {

int twin(int typeId)
{
    switch (typeId) {
    case QMetaType::QPoint:
        return QMetaType::QPointF;
    case QMetaType::QPointF:
        return QMetaType::QPoint;
    case QMetaType::QSize:
        return QMetaType::QSizeF;
    case QMetaType::QSizeF:
        return QMetaType::QSize;
    case QMetaType::QLine:
        return QMetaType::QLineF;
    case QMetaType::QLineF:
        return QMetaType::QLine;
    case QMetaType::QRect:
        return QMetaType::QRectF;
    case QMetaType::QRectF:
        return QMetaType::QRect;
    default:
        return QMetaType::UnknownType;
    }
}

QString typeName(int typeId)
{
    return QString::fromLatin1(QMetaType::typeName(typeId));
}

QVector<qreal> numbers(QScriptContext* context)
{
    QVector<qreal> result;
    for (int index = 0; index < context->argumentCount(); ++index) {
        const QScriptValue argument = context->argument(index);
        if (!argument.isNumber())
            return {};
        result.append(argument.toNumber());
    }
    return result;
}

bool isEnumValue(const QScriptValue& value, const QMetaEnum& enumeration)
{
    return value.isNumber() && value.toNumber() == value.toInt32()
        && enumeration.valueToKey(value.toInt32()) != nullptr;
}

void addEnum(QScriptValue object, const QMetaEnum& enumeration)
{
    for (int index = 0; index < enumeration.keyCount(); ++index)
        object.setProperty(QString::fromLatin1(enumeration.key(index)), enumeration.value(index),
                           QScriptValue::ReadOnly | QScriptValue::Undeletable);
}

} // namespace ValueTypes
