#pragma once

#include <QByteArray>
#include <QString>

// One input of the geometry fuzz target and of its corpus replay: UTF-8 lines, the first a
// polygon in the text form of Nemu::Geometry, the second, if present, a second polygon. The
// first is read, written back, normalised and triangulated; with a second, both go through
// every boolean operation and each piece is triangulated as a body made of it would be. The
// result describes the first fault found, or is empty.
QString checkGeometryInput(const QByteArray& input);
