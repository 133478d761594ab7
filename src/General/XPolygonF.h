#pragma once

#include <QList>
#include <QPolygonF>

// An outline in the program's normal form, ready to become physics shapes: no edge shorter
// than single precision can tell apart, stored open (the first vertex is not repeated at the
// end) and counter-clockwise in y-up coordinates. It can cut itself into triangles, the
// convex pieces that the physics engine accepts. It owns nothing beyond its vertices and adds
// no data to QPolygonF, so it is passed by value.
class XPolygonF : public QPolygonF
{
public:
    // Copies and normalises; an outline of fewer than three vertices is kept as it is.
    XPolygonF(const QPolygonF& polygon);

    // The counter-clockwise triangles that cover the outline's inside by the even-odd rule, as
    // the outline is filled when drawn: self-intersections are resolved, and a hole cut into
    // the outline stays free. Triangles too thin for single precision are left out and
    // reported as a warning.
    QList<XPolygonF> triangulate() const;
    // The outline without the edges that it runs along an even number of times, such as the
    // bridges to cut-in holes: closed rings that bound the same inside by the even-odd rule,
    // to be drawn. A simple outline is its own one ring.
    QVector<QPolygonF> boundary() const;

private:
    void removeShortEdges();
    bool isClockwise() const;
    void reverse();
    static bool isValidTriangle(const QPolygonF& polygon);
};
