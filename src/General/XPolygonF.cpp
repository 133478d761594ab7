#include "General/XPolygonF.h"

#include "Application/Application.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainterPath>
#include <QTransform>
#include <QtDebug>

#include <CGAL/Constrained_Delaunay_triangulation_2.h>
#include <CGAL/Constrained_triangulation_plus_2.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Polygon_2_algorithms.h>
#include <CGAL/Triangulation_face_base_with_info_2.h>

#include <algorithm>
#include <limits>
#include <map>
#include <vector>

namespace {

// An edge whose squared length is at most the square of single precision's epsilon vanishes
// once the vertices are narrowed to float for the physics engine.
constexpr qreal shortEdgeLimit
    = qreal(std::numeric_limits<float>::epsilon()) * qreal(std::numeric_limits<float>::epsilon());
// First and last vertex closer than this in both coordinates are one vertex.
constexpr qreal closingTolerance = 1e-12;
// Signed area, in single precision, that a triangle must exceed to become a physics shape.
constexpr float minimumTriangleArea = std::numeric_limits<float>::epsilon();

using Kernel = CGAL::Exact_predicates_inexact_constructions_kernel;
using Point = Kernel::Point_2;
// The face information is the index of the region the face lies in: a region is a maximal set
// of faces connected without crossing a constraint.
using FaceBase = CGAL::Constrained_triangulation_face_base_2<
    Kernel, CGAL::Triangulation_face_base_with_info_2<int, Kernel>>;
using DataStructure
    = CGAL::Triangulation_data_structure_2<CGAL::Triangulation_vertex_base_2<Kernel>, FaceBase>;
// Exact_predicates_tag lets rings touch and cross, which rounding in the simplification can
// produce. The "plus" hierarchy remembers which ring each piece of a split constraint came from.
using Triangulation = CGAL::Constrained_triangulation_plus_2<
    CGAL::Constrained_Delaunay_triangulation_2<Kernel, DataStructure, CGAL::Exact_predicates_tag>>;
using RingSet = std::vector<int>;

constexpr int unvisited = -1;

// Vertices beyond single precision's range can never become physics shapes, and far larger
// ones make QPainterPath::simplified fail outright.
bool fitsSinglePrecision(const QPolygonF& polygon)
{
    constexpr qreal limit = std::numeric_limits<float>::max();
    return std::all_of(polygon.cbegin(), polygon.cend(), [](const QPointF& point) {
        return qAbs(point.x()) <= limit && qAbs(point.y()) <= limit;
    });
}

std::vector<Point> toPoints(const QPolygonF& polygon)
{
    std::vector<Point> points;
    points.reserve(size_t(polygon.size()));
    for (const QPointF& vertex : polygon)
        points.emplace_back(vertex.x(), vertex.y());
    return points;
}

// The outline first, then the holes. Simplification resolves self-intersections and takes a
// cut-in hole apart into the boundary and the hole. It takes most of the time for a large
// outline, and a simple outline is its own one ring, so that one is passed through.
QVector<XPolygonF> ringsOf(const XPolygonF& outline)
{
    const std::vector<Point> points = toPoints(outline);
    if (CGAL::is_simple_2(points.cbegin(), points.cend(), Kernel()))
        return {outline};

    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    QVector<XPolygonF> rings;
    for (const QPolygonF& subpath : path.simplified().toSubpathPolygons(QTransform())) {
        const XPolygonF ring(subpath);
        // Without its outline there is nothing to cut; a hole that degenerates is left out.
        if (ring.size() < 3 && rings.isEmpty())
            return {};
        if (ring.size() >= 3)
            rings.append(ring);
    }
    return rings;
}

// Gives all faces reachable from start without crossing a constraint the region index, and
// collects the constrained edges through which further regions are reached.
void floodRegion(Triangulation::Face_handle start, int region,
                 std::vector<Triangulation::Edge>& border)
{
    std::vector<Triangulation::Face_handle> pending {start};
    start->info() = region;
    while (!pending.empty()) {
        const Triangulation::Face_handle face = pending.back();
        pending.pop_back();
        for (int i = 0; i < 3; ++i) {
            const Triangulation::Face_handle neighbour = face->neighbor(i);
            if (neighbour->info() != unvisited)
                continue;
            if (face->is_constrained(i)) {
                border.emplace_back(face, i);
            } else {
                neighbour->info() = region;
                pending.push_back(neighbour);
            }
        }
    }
}

// Crossing a ring's edge moves in or out of that ring: even-odd per ring.
void toggle(RingSet& rings, int ring)
{
    const auto position = std::lower_bound(rings.begin(), rings.end(), ring);
    if (position != rings.end() && *position == ring)
        rings.erase(position);
    else
        rings.insert(position, ring);
}

// The counter-clockwise triangles of the constrained Delaunay triangulation of the rings that
// lie inside the first ring and outside every further one, in the triangulation's face order.
QVector<QPolygonF> trianglesInside(const QVector<XPolygonF>& rings)
{
    Triangulation triangulation;
    std::map<Triangulation::Constraint_id, int> ringOfConstraint;
    for (int ring = 0; ring < rings.size(); ++ring) {
        const std::vector<Point> points = toPoints(rings.at(ring));
        ringOfConstraint[triangulation.insert_constraint(points.begin(), points.end(), true)]
            = ring;
    }
    if (triangulation.dimension() < 2)
        return {};

    for (auto face = triangulation.all_faces_begin(); face != triangulation.all_faces_end(); ++face)
        face->info() = unvisited;
    // The rings each region lies inside, found by walking out from the unbounded region.
    std::vector<RingSet> insideRings {RingSet()};
    std::vector<Triangulation::Edge> border;
    floodRegion(triangulation.infinite_face(), 0, border);
    while (!border.empty()) {
        const auto [face, index] = border.back();
        border.pop_back();
        const Triangulation::Face_handle neighbour = face->neighbor(index);
        if (neighbour->info() != unvisited)
            continue;
        RingSet inside = insideRings[size_t(face->info())];
        const auto from = face->vertex(Triangulation::cw(index));
        const auto to = face->vertex(Triangulation::ccw(index));
        for (auto context : triangulation.contexts(from, to))
            toggle(inside, ringOfConstraint.at(context.id()));
        insideRings.push_back(inside);
        floodRegion(neighbour, int(insideRings.size() - 1), border);
    }

    const RingSet domain {0};
    QVector<QPolygonF> triangles;
    for (const auto face : triangulation.finite_face_handles()) {
        if (insideRings[size_t(face->info())] != domain)
            continue;
        QPolygonF triangle;
        for (int i = 0; i < 3; ++i)
            triangle << QPointF(face->vertex(i)->point().x(), face->vertex(i)->point().y());
        triangles.append(triangle);
    }
    return triangles;
}

} // namespace

XPolygonF::XPolygonF(const QPolygonF& polygon)
    : QPolygonF(polygon)
{
    removeShortEdges();
    if (size() < 3) {
        qDebug("XPolygonF with less than 3 vertices.");
        return;
    }
    const QPointF closing = first() - last();
    if (qAbs(closing.x()) <= closingTolerance && qAbs(closing.y()) <= closingTolerance)
        removeLast();
    if (isClockwise())
        reverse();
}

QList<XPolygonF> XPolygonF::triangulate() const
{
    if (size() < 3 || !fitsSinglePrecision(*this))
        return {};

    const QVector<XPolygonF> rings = ringsOf(*this);
    if (rings.isEmpty())
        return {};

    QList<XPolygonF> result;
    int skipped = 0;
    for (const QPolygonF& triangle : trianglesInside(rings)) {
        if (isValidTriangle(triangle)) {
            // A triangle can pass the area test with one edge too short to keep; normalising
            // it then leaves two vertices, which are no shape either.
            const XPolygonF normal(triangle);
            if (normal.size() == 3) {
                result.append(normal);
                continue;
            }
        }
        ++skipped;
    }
    if (skipped > 0)
        Application::report(
            QCoreApplication::translate("XPolygonF", "Skipped %1 triangles").arg(skipped),
            Brivane::Warning);
    return result;
}

// The scan goes on at index 1 after a removal, so a short edge that the removal creates at
// index 0 stays; the closing edge is left to the constructor.
void XPolygonF::removeShortEdges()
{
    if (size() < 2)
        return;
    int i = 0;
    do {
        const qreal length = QLineF(at(i), at(i + 1)).length();
        if (length * length <= shortEdgeLimit) {
            qDebug().nospace() << "Removing edge with length = " << length;
            remove(i + 1);
            i = 1;
        } else {
            ++i;
        }
    } while (i < size() - 1);
}

// The first vertex on the bounding rectangle's top or left side is on the convex hull, so the
// turn at it gives the orientation of the whole outline. Collinear neighbours count as
// counter-clockwise. Only a coordinate that is not a number can leave no such vertex.
bool XPolygonF::isClockwise() const
{
    const QRectF bounds = boundingRect();
    int b = 0;
    while (b < size() && at(b).y() != bounds.top() && at(b).x() != bounds.left())
        ++b;
    if (b == size())
        return false;
    const QPointF& pa = at((b + size() - 1) % size());
    const QPointF& pb = at(b);
    const QPointF& pc = at((b + 1) % size());
    const qreal determinant
        = pa.x() * (pb.y() - pc.y()) + pb.x() * (pc.y() - pa.y()) + pc.x() * (pa.y() - pb.y());
    return determinant < 0;
}

void XPolygonF::reverse()
{
    std::reverse(begin(), end());
}

// Shoelace sum in single precision, as the physics engine will see the vertices.
bool XPolygonF::isValidTriangle(const QPolygonF& polygon)
{
    float area = 0.0f;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& p = polygon.at(i);
        const QPointF& q = polygon.at((i + 1) % polygon.size());
        area += (float(p.x()) * float(q.y()) - float(q.x()) * float(p.y())) / 2.0f;
    }
    return area > minimumTriangleArea;
}
