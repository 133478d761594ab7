#pragma once

#include <QList>
#include <QPolygon>
#include <QPolygonF>

#include <clipper.hpp>

// Boolean operations (union, difference, intersection) on two outlines, through the integer
// engine of Clipper. Coordinates are scaled to millionths of a world unit and pass through
// 32-bit QPolygon, which limits them to about plus or minus 2147 units; larger ones are bounded
// to that. Holes of a result are cut into their outline, so every piece is one QPolygonF. Made
// on the stack for one operation; it owns its engine.
class PolygonClipper
{
public:
    PolygonClipper();

    // The pieces of subject combined with clip under the even-odd rule, each with its holes
    // joined to its boundary. An empty result is no failure; a refusal of the engine is
    // reported on the console and gives no pieces either.
    QList<QPolygonF> clip(ClipperLib::ClipType operation, const QPolygonF& subject,
                          const QPolygonF& clip);

private:
    void addPolygon(const QPolygonF& polygon, ClipperLib::PolyType role);
    QPolygon toIntegerPolygon(const QPolygonF& polygon) const;
    QPolygonF toFloatPolygon(const QPolygon& polygon) const;
    QPolygonF fromOuterNode(const ClipperLib::PolyNode& outer) const;
    void appendPieces(const ClipperLib::PolyNode& outer, QList<QPolygonF>& pieces) const;

    const quint32 scale;
    ClipperLib::Clipper clipper;
};
