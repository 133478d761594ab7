#pragma once

#include "General/XProperty.h"

#include <QMetaType>
#include <QObject>
#include <QPointer>
#include <QVector>

// An ordered set of declared properties and the object they were read from. It is how the
// world and the items travel into snapshots, clones and files. The object is guarded: a
// snapshot may outlive an item that a script deleted meanwhile. Lists are implicitly shared
// values: snapshots of an unchanged item hold one copy of its values between them.
struct XPropertyList
{
    QVector<XProperty> properties;
    QPointer<QObject> object;

    // Reads every declared property of the object (all but objectName), base classes first.
    static XPropertyList read(QObject* object);
    // Writes each writable property that the object declares; the rest is skipped silently.
    static void write(QObject* object, const XPropertyList& list);
    // Whether the object, of the class this list was read from, holds these values now;
    // numbers must be equal bit for bit.
    bool describes(QObject* object) const;
};
Q_DECLARE_METATYPE(XPropertyList)
