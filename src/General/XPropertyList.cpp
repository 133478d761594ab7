#include "General/XPropertyList.h"

#include <QMetaProperty>

XPropertyList XPropertyList::read(QObject* object)
{
    XPropertyList list;
    list.object = object;
    const QMetaObject* metaObject = object->metaObject();
    list.properties.reserve(metaObject->propertyCount() - 1);
    // Index 0 is QObject's objectName, which is not part of an item's state.
    for (int index = 1; index < metaObject->propertyCount(); ++index) {
        const QMetaProperty property = metaObject->property(index);
        list.properties.append({QString::fromLatin1(property.name()), property.read(object)});
    }
    return list;
}

void XPropertyList::write(QObject* object, const XPropertyList& list)
{
    const QMetaObject* metaObject = object->metaObject();
    for (const XProperty& property : list.properties) {
        const QByteArray name = property.name.toLocal8Bit();
        const int index = metaObject->indexOfProperty(name.constData());
        if (index >= 0 && metaObject->property(index).isWritable())
            object->setProperty(name.constData(), property.value);
    }
}
