#include "General/XPropertyList.h"

#include <QHash>
#include <QMetaProperty>

namespace {
// What reading and writing need of one class's declared properties, found once per class:
// QMetaObject::property() and QMetaProperty::read() look enumerations and type names up by
// name, which would dominate a snapshot of thousands of items.
struct ClassProperties
{
    QVector<QString> names;
    QVector<QMetaProperty> properties;
    // The type that QMetaProperty::read() gives, or UnknownType where only it can tell.
    QVector<int> types;
};

const ClassProperties& classProperties(const QMetaObject* metaObject)
{
    static QHash<const QMetaObject*, ClassProperties> cache;
    auto entry = cache.find(metaObject);
    if (entry == cache.end()) {
        ClassProperties properties;
        for (int index = 0; index < metaObject->propertyCount(); ++index) {
            const QMetaProperty property = metaObject->property(index);
            properties.names.append(QString::fromLatin1(property.name()));
            properties.properties.append(property);
            // userType() gives Int for an enumeration whose type is not registered, as read()
            // does, and also for any other type it does not know.
            const int type = property.userType();
            const bool known
                = property.isEnumType() || QMetaType::type(property.typeName()) == type;
            properties.types.append(known ? type : int(QMetaType::UnknownType));
        }
        entry = cache.insert(metaObject, properties);
    }
    return entry.value();
}

// QMetaProperty::read() without its look-ups, for a property of a known type.
QVariant readKnownType(QObject* object, int index, int type)
{
    QVariant value;
    int status = -1;
    void* argv[] = {nullptr, &value, &status};
    if (type == QMetaType::QVariant) {
        argv[0] = &value;
    } else {
        value = QVariant(type, nullptr);
        argv[0] = value.data();
    }
    QMetaObject::metacall(object, QMetaObject::ReadProperty, index, argv);
    if (status == -1 && type != QMetaType::QVariant && argv[0] != value.data())
        return QVariant(type, argv[0]); // the property handed out a reference
    return value;
}

// A property of one of the commonest types, read without QVariant's own look-ups: most of a
// snapshot is these.
template<typename T> T readTyped(QObject* object, int index)
{
    T value {};
    QVariant unused;
    int status = -1;
    void* argv[] = {&value, &unused, &status};
    QMetaObject::metacall(object, QMetaObject::ReadProperty, index, argv);
    if (status != -1)
        return unused.value<T>();
    return argv[0] == &value ? value : *static_cast<const T*>(argv[0]);
}

template<typename T> bool holdsTyped(QObject* object, int index, const QVariant& stored)
{
    return stored.userType() == qMetaTypeId<T>()
        && readTyped<T>(object, index) == *static_cast<const T*>(stored.constData());
}

QVariant readValue(QObject* object, const ClassProperties& known, int index)
{
    const int type = known.types.at(index);
    switch (type) {
    case QMetaType::Double:
        return readTyped<double>(object, index);
    case QMetaType::Bool:
        return readTyped<bool>(object, index);
    case QMetaType::Int:
        return readTyped<int>(object, index);
    case QMetaType::QString:
        return readTyped<QString>(object, index);
    case QMetaType::UnknownType:
        return known.properties.at(index).read(object);
    default:
        return readKnownType(object, index, type);
    }
}

bool sameValue(const QVariant& a, const QVariant& b)
{
    if (a.userType() != b.userType())
        return false;
    // QVariant compares floating point values fuzzily; a snapshot must tell any change.
    if (a.userType() == QMetaType::Double)
        return *static_cast<const double*>(a.constData())
            == *static_cast<const double*>(b.constData());
    if (a.userType() == QMetaType::Float)
        return *static_cast<const float*>(a.constData())
            == *static_cast<const float*>(b.constData());
    return a == b;
}
} // namespace

XPropertyList XPropertyList::read(QObject* object)
{
    XPropertyList list;
    list.object = object;
    const ClassProperties& known = classProperties(object->metaObject());
    const int count = known.properties.size();
    list.properties.reserve(count - 1);
    // Index 0 is QObject's objectName, which is not part of an item's state.
    for (int index = 1; index < count; ++index)
        list.properties.append({known.names.at(index), readValue(object, known, index)});
    return list;
}

void XPropertyList::write(QObject* object, const XPropertyList& list)
{
    const QMetaObject* metaObject = object->metaObject();
    const ClassProperties& known = classProperties(metaObject);
    // A list read from an object of the same class holds its properties at their indices.
    const bool sameClass = list.object && list.object->metaObject() == metaObject
        && list.properties.size() == known.properties.size() - 1;
    for (int i = 0; i < list.properties.size(); ++i) {
        const XProperty& property = list.properties.at(i);
        const int index = sameClass
            ? i + 1
            : metaObject->indexOfProperty(property.name.toLocal8Bit().constData());
        if (index < 0)
            continue;
        const QMetaProperty& metaProperty = known.properties.at(index);
        if (metaProperty.isWritable())
            metaProperty.write(object, property.value);
    }
}

bool XPropertyList::describes(QObject* object) const
{
    // Only a list read from an object of the same class holds its properties at their indices.
    const ClassProperties& known = classProperties(object->metaObject());
    if (!this->object || this->object->metaObject() != object->metaObject()
        || properties.size() != known.properties.size() - 1)
        return false;
    for (int index = 1; index < known.properties.size(); ++index) {
        const QVariant& stored = properties.at(index - 1).value;
        bool same;
        switch (known.types.at(index)) {
        case QMetaType::Double:
            same = holdsTyped<double>(object, index, stored);
            break;
        case QMetaType::Bool:
            same = holdsTyped<bool>(object, index, stored);
            break;
        case QMetaType::Int:
            same = holdsTyped<int>(object, index, stored);
            break;
        case QMetaType::QString:
            same = holdsTyped<QString>(object, index, stored);
            break;
        default:
            same = sameValue(readValue(object, known, index), stored);
        }
        if (!same)
            return false;
    }
    return true;
}
