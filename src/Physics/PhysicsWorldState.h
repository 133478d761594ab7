#pragma once

#include "General/XPropertyList.h"

#include <QVector>

// Snapshot of a scene: the world's properties and those of each item active at the time.
struct PhysicsWorldState
{
    XPropertyList worldProperties;
    QVector<XPropertyList> itemProperties;
};
