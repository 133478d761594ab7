#pragma once

#include "General/XProperty.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPointer>

// An ordered set of declared properties and the object they were read from. It is how the
// world and the items travel into snapshots, clones and files. The object is guarded: a
// snapshot may outlive an item that a script deleted meanwhile.
struct XPropertyList
{
    QList<XProperty> properties;
    QPointer<QObject> object;

    // Reads every declared property of the object (all but objectName), base classes first.
    static XPropertyList read(QObject* object);
    // Writes each writable property that the object declares; the rest is skipped silently.
    static void write(QObject* object, const XPropertyList& list);
};
Q_DECLARE_METATYPE(XPropertyList)
