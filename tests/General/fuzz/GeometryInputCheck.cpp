#include "General/fuzz/GeometryInputCheck.h"

#include "General/PolygonClipper.h"
#include "General/XPolygonF.h"
#include "General/support/PolygonChecks.h"
#include "NemuGeometry/Geometry.h"

#include <QStringList>

#include <algorithm>

namespace {

// Within this range the clipper's 32-bit millionths hold the coordinates exactly enough.
constexpr double clipperRange = 2147.0;

QString readFault(const QString& text, QPolygonF& polygon)
{
    bool ok = false;
    polygon = Nemu::Geometry::polygonFromString(text, &ok);
    if (!ok)
        return polygon.isEmpty() ? QString()
                                 : QStringLiteral("partial polygon from malformed text");
    if (Nemu::Geometry::polygonFromString(Nemu::Geometry::polygonToString(polygon)) != polygon)
        return QStringLiteral("text form does not read back");
    return QString();
}

QString triangulationFault(const QPolygonF& outline)
{
    const QString fault
        = PolygonChecks::triangleFault(XPolygonF(outline).triangulate(), outline.boundingRect());
    return fault.isEmpty()
        ? fault
        : fault + QStringLiteral(" of ") + Nemu::Geometry::polygonToString(outline);
}

bool withinClipperRange(const QRectF& bounds)
{
    return QRectF(-clipperRange, -clipperRange, 2 * clipperRange, 2 * clipperRange)
        .contains(bounds);
}

QString clipFault(const QPolygonF& subject, const QPolygonF& clip)
{
    // Rounding to millionths may move a vertex by half of one.
    const QRectF bounds
        = subject.boundingRect().united(clip.boundingRect()).adjusted(-1e-6, -1e-6, 1e-6, 1e-6);
    const bool checkBounds = withinClipperRange(bounds);
    for (const ClipperLib::ClipType operation :
         {ClipperLib::ctIntersection, ClipperLib::ctUnion, ClipperLib::ctDifference}) {
        for (const QPolygonF& piece : PolygonClipper().clip(operation, subject, clip)) {
            const auto inside
                = [&bounds](const QPointF& vertex) { return bounds.contains(vertex); };
            if (checkBounds && !std::all_of(piece.cbegin(), piece.cend(), inside))
                return QStringLiteral("piece outside the operands: %1")
                    .arg(Nemu::Geometry::polygonToString(piece));
            const QString fault = triangulationFault(piece);
            if (!fault.isEmpty())
                return QStringLiteral("piece: ") + fault;
        }
    }
    return QString();
}

} // namespace

QString checkGeometryInput(const QByteArray& input)
{
    const QStringList lines = QString::fromUtf8(input).split(QLatin1Char('\n'));
    QPolygonF subject;
    QString fault = readFault(lines.first(), subject);
    if (fault.isEmpty())
        fault = triangulationFault(subject);
    if (!fault.isEmpty() || lines.size() < 2)
        return fault;
    QPolygonF clip;
    fault = readFault(lines.at(1), clip);
    return fault.isEmpty() ? clipFault(subject, clip) : fault;
}
