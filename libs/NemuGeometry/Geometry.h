#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QString>

// Text forms of points and polygons, as they stand in properties and scene files. The decimal
// point is always '.', whatever the system's language.
namespace Nemu {
namespace Geometry {

// The point of "x,y", each number in any form that QString::number writes, exponents
// included. Malformed text, or a coordinate that is not finite, gives (0, 0) and sets ok to
// false.
QPointF pointFromString(const QString& text, bool* ok = nullptr);

// "x,y" with six significant digits each: the form in which anchors are shown.
QString pointToString(const QPointF& point);

// The vertices in order as "x,y" points separated by blanks, each coordinate in the shortest
// form that reads back to the same double.
QString polygonToString(const QPolygonF& polygon);

// The polygon of polygonToString's text; empty text is the empty polygon. If any point is
// malformed the result is empty and ok is set to false, never a partial polygon.
QPolygonF polygonFromString(const QString& text, bool* ok = nullptr);

} // namespace Geometry
} // namespace Nemu
