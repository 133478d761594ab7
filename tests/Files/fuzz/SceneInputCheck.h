#pragma once

#include <QByteArray>
#include <QString>

// Reads the bytes as a scene document into the world, plays a few steps, writes the scene and
// reads that back. Returns what went wrong, empty if nothing did: an item left inactive or
// under a name it does not hold, a joint or force on a body outside the world, a counter
// below zero, or a written scene that does not read back to as many items.
QString checkSceneInput(const QByteArray& document);
