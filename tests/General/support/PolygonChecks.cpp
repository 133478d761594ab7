#include "General/support/PolygonChecks.h"

#include "NemuGeometry/Geometry.h"

#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>

namespace PolygonChecks {

QPolygonF makePolygon(std::initializer_list<QPointF> vertices)
{
    return QPolygonF(QVector<QPointF>(vertices));
}

double signedArea(const QPolygonF& polygon)
{
    double area = 0.0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& p = polygon.at(i);
        const QPointF& q = polygon.at((i + 1) % polygon.size());
        area += (p.x() * q.y() - q.x() * p.y()) / 2.0;
    }
    return area;
}

double totalArea(const QList<XPolygonF>& triangles)
{
    double area = 0.0;
    for (const XPolygonF& triangle : triangles)
        area += signedArea(triangle);
    return area;
}

QPointF centroid(const QPolygonF& polygon)
{
    QPointF sum;
    for (const QPointF& point : polygon)
        sum += point;
    return polygon.isEmpty() ? sum : sum / polygon.size();
}

// Decided exactly: a nearly flat triangle far from the origin has a shoelace sum that
// rounding can give either sign.
bool isCounterClockwise(const QPolygonF& triangle)
{
    using Point = CGAL::Exact_predicates_inexact_constructions_kernel::Point_2;
    const auto point = [&triangle](int i) { return Point(triangle.at(i).x(), triangle.at(i).y()); };
    return CGAL::orientation(point(0), point(1), point(2)) == CGAL::LEFT_TURN;
}

QString triangleFault(const QList<XPolygonF>& triangles, const QRectF& bounds)
{
    // Intersection points are computed in floating point and may stray by rounding.
    const double slack = 1e-9 * qMax(1.0, qMax(bounds.width(), bounds.height()));
    const QRectF allowed = bounds.adjusted(-slack, -slack, slack, slack);
    for (const XPolygonF& triangle : triangles) {
        const QString text = Nemu::Geometry::polygonToString(triangle);
        if (triangle.size() != 3)
            return QStringLiteral("not a triangle: %1").arg(text);
        if (!isCounterClockwise(triangle))
            return QStringLiteral("not counter-clockwise: %1").arg(text);
        for (const QPointF& vertex : triangle) {
            if (!allowed.contains(vertex))
                return QStringLiteral("outside the bounding box: %1").arg(text);
        }
    }
    return QString();
}

} // namespace PolygonChecks
