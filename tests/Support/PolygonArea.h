#pragma once

#include <QPolygonF>
#include <cmath>

// A polygon's area by the shoelace formula, in square metres. The bridge along which a cut
// leaves a hole joined to its outline cancels out, so the hole counts as taken away.
inline double polygonArea(const QPolygonF& polygon)
{
    double twice = 0.0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& a = polygon.at(i);
        const QPointF& b = polygon.at((i + 1) % polygon.size());
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(twice) / 2.0;
}
