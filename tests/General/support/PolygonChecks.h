#pragma once

#include "General/XPolygonF.h"

#include <QList>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <initializer_list>

// Measures and checks of polygons shared by the geometry tests and the fuzz target.
namespace PolygonChecks {

// The polygon of the listed vertices; Qt 5's QPolygonF has no such constructor.
QPolygonF makePolygon(std::initializer_list<QPointF> vertices);

// Shoelace area in double precision: positive for counter-clockwise vertices in y-up
// coordinates.
double signedArea(const QPolygonF& polygon);

// Sum of the signed areas.
double totalArea(const QList<XPolygonF>& triangles);

// The mean of the vertices, which for a triangle lies strictly inside it.
QPointF centroid(const QPolygonF& polygon);

// Describes the first triangle that has not three vertices, is not counter-clockwise or
// reaches outside bounds; empty when all are fine.
QString triangleFault(const QList<XPolygonF>& triangles, const QRectF& bounds);

} // namespace PolygonChecks
