#include "General/XPropertyList.h"

#include <QHash>
#include <QMetaProperty>
#include <QVector>

namespace {
// The names of a class's declared properties, made once per class: snapshots read every
// property of every item, and a fresh string per property would dominate their cost.
const QVector<QString>& propertyNames(const QMetaObject* metaObject)
{
    static QHash<const QMetaObject*, QVector<QString>> cache;
    auto entry = cache.find(metaObject);
    if (entry == cache.end()) {
        QVector<QString> names;
        for (int index = 0; index < metaObject->propertyCount(); ++index)
            names.append(QString::fromLatin1(metaObject->property(index).name()));
        entry = cache.insert(metaObject, names);
    }
    return entry.value();
}
} // namespace

XPropertyList XPropertyList::read(QObject* object)
{
    XPropertyList list;
    list.object = object;
    const QMetaObject* metaObject = object->metaObject();
    const QVector<QString>& names = propertyNames(metaObject);
    list.properties.reserve(metaObject->propertyCount() - 1);
    // Index 0 is QObject's objectName, which is not part of an item's state.
    for (int index = 1; index < metaObject->propertyCount(); ++index)
        list.properties.append({names.at(index), metaObject->property(index).read(object)});
    return list;
}

void XPropertyList::write(QObject* object, const XPropertyList& list)
{
    const QMetaObject* metaObject = object->metaObject();
    // A list read from an object of the same class holds its properties at their indices.
    const bool sameClass = list.object && list.object->metaObject() == metaObject
        && list.properties.size() == metaObject->propertyCount() - 1;
    for (int i = 0; i < list.properties.size(); ++i) {
        const XProperty& property = list.properties.at(i);
        const int index = sameClass
            ? i + 1
            : metaObject->indexOfProperty(property.name.toLocal8Bit().constData());
        if (index < 0)
            continue;
        const QMetaProperty metaProperty = metaObject->property(index);
        if (metaProperty.isWritable())
            metaProperty.write(object, property.value);
    }
}
