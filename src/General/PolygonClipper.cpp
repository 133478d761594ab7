#include "General/PolygonClipper.h"

#include "Application/Application.h"

#include <QCoreApplication>
#include <QPainterPath>
#include <QTransform>

#include <limits>

namespace {

// Low 32 bits of each coordinate: every value the engine returns lies within what went in.
QPolygon toQPolygon(const ClipperLib::Path& path)
{
    QPolygon polygon;
    polygon.reserve(int(path.size()));
    for (const ClipperLib::IntPoint& point : path)
        polygon << QPoint(static_cast<int>(point.X), static_cast<int>(point.Y));
    return polygon;
}

} // namespace

PolygonClipper::PolygonClipper()
    : scale(1000000)
{
}

QList<QPolygonF> PolygonClipper::clip(ClipperLib::ClipType operation, const QPolygonF& subject,
                                      const QPolygonF& clip)
{
    addPolygon(subject, ClipperLib::ptSubject);
    addPolygon(clip, ClipperLib::ptClip);
    ClipperLib::PolyTree solution;
    const bool succeeded
        = clipper.Execute(operation, solution, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
    // Emptied so that a second operation does not see the first one's outlines.
    clipper.Clear();
    if (!succeeded) {
        Application::report(QCoreApplication::translate("PolygonClipper", "Clipper Failed..."),
                            Brivane::Info);
        return {};
    }
    QList<QPolygonF> pieces;
    for (const ClipperLib::PolyNode* outer : solution.Childs)
        appendPieces(*outer, pieces);
    return pieces;
}

// Self-intersections are resolved before the engine sees the outline, so one input can become
// several rings. Coordinates beyond the 32-bit range are outside what the bridge handles; they
// are bounded first, which keeps the integer conversion defined and spares QPainterPath's
// simplification the huge values on which it fails.
void PolygonClipper::addPolygon(const QPolygonF& polygon, ClipperLib::PolyType role)
{
    const double limit = std::numeric_limits<int>::max() / double(scale);
    QPolygonF bounded;
    bounded.reserve(polygon.size());
    for (const QPointF& point : polygon)
        bounded << QPointF(qBound(-limit, point.x(), limit), qBound(-limit, point.y(), limit));
    QPainterPath path;
    path.addPolygon(bounded);
    for (const QPolygonF& subpath : path.simplified().toSubpathPolygons(QTransform())) {
        ClipperLib::Path ring;
        for (const QPoint& point : toIntegerPolygon(subpath))
            ring.emplace_back(ClipperLib::cInt(point.x()), ClipperLib::cInt(point.y()));
        clipper.AddPath(ring, role, true);
    }
}

QPolygon PolygonClipper::toIntegerPolygon(const QPolygonF& polygon) const
{
    QPolygon integer;
    integer.reserve(polygon.size());
    for (const QPointF& point : polygon)
        integer << QPoint(qRound(point.x() * scale), qRound(point.y() * scale));
    return integer;
}

QPolygonF PolygonClipper::toFloatPolygon(const QPolygon& polygon) const
{
    QPolygonF real;
    real.reserve(polygon.size());
    for (const QPoint& point : polygon)
        real << QPointF(point.x() / double(scale), point.y() / double(scale));
    return real;
}

// The holes are joined into the boundary, and triangulation takes them apart again. They lie
// inside the outline and apart from each other, so the outline followed by each hole, with a
// return to the outline's first vertex after each, fills by the even-odd rule exactly the
// piece: the form that QPolygonF::subtracted gives. Subtracting hole by hole would run a
// clipping pass per hole over the growing outline, which takes minutes for the thousands of
// holes a union of two jagged outlines can have.
QPolygonF PolygonClipper::fromOuterNode(const ClipperLib::PolyNode& outer) const
{
    const QPolygonF outline = toFloatPolygon(toQPolygon(outer.Contour));
    if (outer.Childs.empty())
        return outline;
    QPainterPath path;
    path.addPolygon(outline);
    for (const ClipperLib::PolyNode* hole : outer.Childs)
        path.addPolygon(toFloatPolygon(toQPolygon(hole->Contour)));
    return path.toFillPolygon();
}

// An outline, then the islands inside its holes, depth first: the order of the engine's
// outline-with-holes list.
void PolygonClipper::appendPieces(const ClipperLib::PolyNode& outer, QList<QPolygonF>& pieces) const
{
    pieces.append(fromOuterNode(outer));
    for (const ClipperLib::PolyNode* hole : outer.Childs) {
        for (const ClipperLib::PolyNode* island : hole->Childs)
            appendPieces(*island, pieces);
    }
}
