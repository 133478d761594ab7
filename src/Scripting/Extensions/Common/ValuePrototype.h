#pragma once

#include "ValueTypes.h"

#include <QObject>
#include <QScriptable>
#include <QStringList>

#include <initializer_list>

// Base of the prototype objects that give script values of a Qt value type their methods.
// A method reads the value from its `this` object and writes a changed value back into that
// same object, so every reference to it sees the change. A `this` or an argument of the
// wrong kind throws a script error instead of touching anything.
class ValuePrototype : public QObject, public QScriptable
{
    Q_OBJECT

public:
    explicit ValuePrototype(QObject* parent);

    // Default for prototypes without literals: no other script value stands for a value.
    template<typename V> static bool fromLiteral(const QScriptValue&, V*) { return false; }

    // Default for prototypes whose constructor takes no more than a copy or a literal.
    template<typename V> static bool fromArguments(QScriptContext*, V*) { return false; }

protected:
    // Whether `this` holds a V or its twin; if so, stores it in value, else a TypeError.
    template<typename V> bool readThis(V* value) const
    {
        if (ValueTypes::read(thisObject(), value))
            return true;
        throwError(QScriptContext::TypeError,
                   QStringLiteral("this is not a %1").arg(ValueTypes::typeName(qMetaTypeId<V>())));
        return false;
    }

    // The value of `this`; a default value and a TypeError if `this` holds none.
    template<typename V> V thisValue() const
    {
        V value;
        readThis(&value);
        return value;
    }

    // Applies change to the value of `this` and stores the result in `this`. Meanwhile `this`
    // holds an empty value of its type, so that the value is not shared and changes in place:
    // a polygon that grows point by point does not copy itself at each point.
    template<typename V, typename Change> void changeThis(Change change)
    {
        V value;
        if (!readThis(&value))
            return;
        const int type = releaseThis();
        change(value);
        writeThis(QVariant::fromValue(value), type);
    }

    // Reads a method argument that must be a value of Prototype; TypeError if it is not.
    template<typename Prototype>
    bool argument(const QScriptValue& value, typename Prototype::Value* result) const
    {
        if (ValueTypes::readValue<Prototype>(value, result))
            return true;
        throwError(QScriptContext::TypeError,
                   QStringLiteral("%1 is not a %2")
                       .arg(value.toString(),
                            ValueTypes::typeName(qMetaTypeId<typename Prototype::Value>())));
        return false;
    }

    // Reads a method argument that must be a value of the enumeration E; RangeError if not.
    template<typename E> bool enumArgument(const QScriptValue& value, E* result) const
    {
        if (ValueTypes::readEnum(value, result))
            return true;
        throwError(QScriptContext::RangeError,
                   QStringLiteral("%1 is not a value of %2")
                       .arg(value.toString(), QLatin1String(QMetaEnum::fromType<E>().enumName())));
        return false;
    }

    // Whether index lies in [0, size); RangeError if not.
    bool indexArgument(int index, int size) const;

    // "QPointF(1, 2)": the type of `this` and the given fields.
    QString describe(const QStringList& fields) const;
    static QStringList format(std::initializer_list<qreal> numbers);

private:
    // Leaves `this` with a default value of its type, which it returns.
    int releaseThis();
    // Stores value in `this`, converted to `this`'s type (QPointF to QPoint).
    void writeThis(QVariant value, int type);
    void throwError(QScriptContext::Error error, const QString& text) const;
};
