#pragma once

#include <QMetaEnum>
#include <QMetaType>
#include <QScriptContext>
#include <QScriptEngine>
#include <QScriptValue>
#include <QVariant>
#include <QVector>

// How the extensions carry Qt value types in scripts. A value is a variant object that holds
// the C++ value, so QtScript hands it to slots and properties as it is; the methods live on
// its prototype, an object of a ValuePrototype subclass. The integer geometry types (QPoint,
// QSize, QLine, QRect) share the prototype class of their floating-point twins: either is
// accepted where the other is asked for, converted as QVariant converts them.
//
// A prototype class declares the C++ type it works on as Value, the text `forms` that lists
// its constructor forms for error messages, and may hide ValuePrototype's fromLiteral (script
// values that stand for a Value, such as a colour name) and fromArguments (constructor forms
// of more than a copy or a literal).
namespace ValueTypes {

// The type that stands in for typeId, QPoint for QPointF and back; UnknownType if none.
int twin(int typeId);

// The name under which scripts know typeId, "QPointF".
QString typeName(int typeId);

// The arguments of the call as numbers; empty if one of them is not a number.
QVector<qreal> numbers(QScriptContext* context);

// Whether value is an integer that is a value of enumeration.
bool isEnumValue(const QScriptValue& value, const QMetaEnum& enumeration);

// Adds the keys of enumeration to object as read-only numbers, e.g. QBrush.SolidPattern.
void addEnum(QScriptValue object, const QMetaEnum& enumeration);

template<typename T, typename V> T convert(const V& value)
{
    return QVariant::fromValue(value).template value<T>();
}

// Whether value holds a V or its twin; if so, stores it converted to V in result.
template<typename V> bool read(const QScriptValue& value, V* result)
{
    if (!value.isVariant())
        return false;
    const QVariant variant = value.toVariant();
    const int typeId = qMetaTypeId<V>();
    if (variant.userType() != typeId && variant.userType() != twin(typeId))
        return false;
    *result = variant.value<V>();
    return true;
}

// Whether value is a Value of Prototype, its twin or a literal of it; if so, stores it.
template<typename Prototype>
bool readValue(const QScriptValue& value, typename Prototype::Value* result)
{
    return read(value, result) || Prototype::fromLiteral(value, result);
}

// Whether value is an integer that is a value of E; if so, stores it in result.
template<typename E> bool readEnum(const QScriptValue& value, E* result)
{
    if (!isEnumValue(value, QMetaEnum::fromType<E>()))
        return false;
    *result = static_cast<E>(value.toInt32());
    return true;
}

template<typename T> QScriptValue toScriptValue(QScriptEngine* engine, const T& value)
{
    // The engine gives the variant object the prototype registered for T.
    return engine->newVariant(QVariant::fromValue(value));
}

// Anything else becomes a default T: a conversion cannot fail from here, and a default is
// what a slot gets from QtScript for a missing value too.
template<typename T, typename Prototype> void fromScriptValue(const QScriptValue& object, T& result)
{
    typename Prototype::Value value;
    result = readValue<Prototype>(object, &value) ? convert<T>(value) : T();
}

// The script constructor of T: (), a copy, a literal or the forms of Prototype's
// fromArguments; anything else throws a TypeError that lists the forms.
template<typename T, typename Prototype>
QScriptValue construct(QScriptContext* context, QScriptEngine* engine)
{
    typename Prototype::Value value;
    const int count = context->argumentCount();
    if (count == 0 || (count == 1 && readValue<Prototype>(context->argument(0), &value))
        || Prototype::fromArguments(context, &value))
        return engine->toScriptValue(convert<T>(value));
    return context->throwError(
        QScriptContext::TypeError,
        QStringLiteral("%1 takes (), (%1), %2")
            .arg(typeName(qMetaTypeId<T>()), QLatin1String(Prototype::forms)));
}

// Makes T known to engine with a prototype of class Prototype, and sets its constructor on
// the global object under T's name. Returns the constructor, for constants to be added.
template<typename T, typename Prototype> QScriptValue install(QScriptEngine* engine)
{
    QScriptValue prototype = engine->newQObject(new Prototype(engine), QScriptEngine::QtOwnership,
                                                QScriptEngine::ExcludeSuperClassContents);
    // Values should not inherit findChild() and the like from the QObject prototype.
    prototype.setPrototype(engine->newObject().prototype());
    qScriptRegisterMetaType<T>(engine, &toScriptValue<T>, &fromScriptValue<T, Prototype>,
                               prototype);
    const QScriptValue constructor = engine->newFunction(&construct<T, Prototype>, prototype);
    engine->globalObject().setProperty(typeName(qMetaTypeId<T>()), constructor);
    return constructor;
}

} // namespace ValueTypes
