#include "General/XPolygonF.h"

#include "Application/Application.h"

#include <QCoreApplication>
#include <QLineF>
#include <QtDebug>

#include <CGAL/Constrained_Delaunay_triangulation_2.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Triangulation_face_base_with_info_2.h>

#include <algorithm>
#include <limits>
#include <map>
#include <utility>
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
using FaceBase = CGAL::Constrained_triangulation_face_base_2<
    Kernel, CGAL::Triangulation_face_base_with_info_2<int, Kernel>>;
using DataStructure
    = CGAL::Triangulation_data_structure_2<CGAL::Triangulation_vertex_base_2<Kernel>, FaceBase>;
// The outline goes in as it is, crossing and touching itself: Exact_predicates_tag lets its
// edges cross.
using Triangulation
    = CGAL::Constrained_Delaunay_triangulation_2<Kernel, DataStructure, CGAL::Exact_predicates_tag>;

// The face information: which side of the outline a face lies on, once known.
constexpr int unvisited = -1;
constexpr int outside = 0;
constexpr int inside = 1;

// Vertices beyond single precision's range can never become physics shapes.
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

using Edge = std::pair<std::size_t, std::size_t>;

// The outline's edges, as pairs of vertex indices, that bound its inside by the even-odd rule.
// An edge that the outline runs along twice, as the bridge to a cut-in hole, out and back,
// bounds nothing: of the edges that stand more than once, in either direction, one is kept for
// an odd count and none for an even one.
std::vector<Edge> boundingEdges(const std::vector<Point>& points)
{
    struct Place
    {
        Point low;
        Point high;
        std::size_t start;
        bool operator<(const Place& other) const
        {
            return low < other.low || (low == other.low && high < other.high);
        }
        bool sameEdge(const Place& other) const { return low == other.low && high == other.high; }
    };
    std::vector<Place> places;
    places.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point& a = points[i];
        const Point& b = points[(i + 1) % points.size()];
        places.push_back(a < b ? Place {a, b, i} : Place {b, a, i});
    }
    std::sort(places.begin(), places.end());
    std::vector<Edge> edges;
    edges.reserve(points.size());
    for (std::size_t first = 0; first < places.size();) {
        std::size_t next = first + 1;
        while (next < places.size() && places[next].sameEdge(places[first]))
            ++next;
        if ((next - first) % 2 == 1)
            edges.emplace_back(places[first].start, (places[first].start + 1) % points.size());
        first = next;
    }
    return edges;
}

// Marks start and every face reachable from it without crossing a constraint as lying on the
// given side, and collects the constrained edges behind which further faces wait.
void floodRegion(Triangulation::Face_handle start, int side,
                 std::vector<Triangulation::Edge>& border)
{
    std::vector<Triangulation::Face_handle> pending {start};
    start->info() = side;
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
                neighbour->info() = side;
                pending.push_back(neighbour);
            }
        }
    }
}

// The counter-clockwise triangles of the constrained Delaunay triangulation of the outline that
// lie inside it by the even-odd rule, in the triangulation's face order. Crossings of the
// outline become vertices of the triangulation.
QVector<QPolygonF> trianglesInside(const XPolygonF& outline)
{
    // All vertices go in at once, which lets the triangulation sort them in space first.
    const std::vector<Point> points = toPoints(outline);
    const std::vector<Edge> edges = boundingEdges(points);
    Triangulation triangulation;
    triangulation.insert_constraints(points.cbegin(), points.cend(), edges.cbegin(), edges.cend());
    if (triangulation.dimension() < 2)
        return {};

    for (auto face = triangulation.all_faces_begin(); face != triangulation.all_faces_end(); ++face)
        face->info() = unvisited;
    // Walking out from the unbounded region, each boundary edge crossed changes sides.
    std::vector<Triangulation::Edge> border;
    floodRegion(triangulation.infinite_face(), outside, border);
    while (!border.empty()) {
        const auto [face, index] = border.back();
        border.pop_back();
        const Triangulation::Face_handle neighbour = face->neighbor(index);
        if (neighbour->info() == unvisited)
            floodRegion(neighbour, face->info() == inside ? outside : inside, border);
    }

    QVector<QPolygonF> triangles;
    for (const auto face : triangulation.finite_face_handles()) {
        if (face->info() != inside)
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

    QList<XPolygonF> result;
    int skipped = 0;
    for (const QPolygonF& triangle : trianglesInside(*this)) {
        // Each triangle comes counter-clockwise, and normalising leaves a sound one as it is.
        // It drops a vertex at an edge too short to keep, and it turns round a triangle so flat
        // that rounding hides its orientation: neither is a shape.
        if (isValidTriangle(triangle)) {
            const XPolygonF normal(triangle);
            if (normal == triangle) {
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

// Every vertex meets an even number of the bounding edges, so walking along unused ones from
// any edge comes back to where it started. The walk keeps to the outline's own order where it
// can, which gives a simple outline back as it was.
QVector<QPolygonF> XPolygonF::boundary() const
{
    const std::vector<Point> points = toPoints(*this);
    const std::vector<Edge> edges = boundingEdges(points);
    std::map<Point, std::vector<std::size_t>> incident;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        incident[points[edges[i].first]].push_back(i);
        incident[points[edges[i].second]].push_back(i);
    }
    std::vector<bool> used(edges.size(), false);
    QVector<QPolygonF> rings;
    for (std::size_t start = 0; start < edges.size(); ++start) {
        if (used[start])
            continue;
        used[start] = true;
        const Point& origin = points[edges[start].first];
        std::size_t vertex = edges[start].second;
        QPolygonF ring;
        ring << at(int(edges[start].first));
        while (points[vertex] != origin) {
            ring << at(int(vertex));
            std::size_t next = edges.size();
            for (const std::size_t candidate : incident[points[vertex]]) {
                if (!used[candidate] && (next == edges.size() || edges[candidate].first == vertex))
                    next = candidate;
            }
            if (next == edges.size())
                break;
            used[next] = true;
            vertex = points[edges[next].first] == points[vertex] ? edges[next].second
                                                                 : edges[next].first;
        }
        if (ring.size() >= 3)
            rings.append(ring);
    }
    return rings;
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
