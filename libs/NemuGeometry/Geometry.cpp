#include "NemuGeometry/Geometry.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

namespace Nemu {
namespace Geometry {

namespace {

void setOk(bool* ok, bool value)
{
    if (ok)
        *ok = value;
}

// The shortest text that reads back to the same double.
QString exactText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace

QPointF pointFromString(const QString& text, bool* ok)
{
    const QStringList parts = text.split(QLatin1Char(','));
    bool xOk = false;
    bool yOk = false;
    // QString::toDouble reads in the C locale, so the system's language plays no part.
    const double x = parts.size() == 2 ? parts.at(0).toDouble(&xOk) : 0.0;
    const double y = parts.size() == 2 ? parts.at(1).toDouble(&yOk) : 0.0;
    const bool valid = xOk && yOk && qIsFinite(x) && qIsFinite(y);
    setOk(ok, valid);
    return valid ? QPointF(x, y) : QPointF();
}

QString pointToString(const QPointF& point)
{
    return QStringLiteral("%1,%2").arg(QString::number(point.x(), 'g', 6),
                                       QString::number(point.y(), 'g', 6));
}

QString polygonToString(const QPolygonF& polygon)
{
    QStringList points;
    points.reserve(polygon.size());
    for (const QPointF& point : polygon)
        points << exactText(point.x()) + QLatin1Char(',') + exactText(point.y());
    return points.join(QLatin1Char(' '));
}

QPolygonF polygonFromString(const QString& text, bool* ok)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    QPolygonF polygon;
    for (const QString& pointText : text.split(blanks, Qt::SkipEmptyParts)) {
        bool pointOk = false;
        polygon << pointFromString(pointText, &pointOk);
        if (!pointOk) {
            setOk(ok, false);
            return QPolygonF();
        }
    }
    setOk(ok, true);
    return polygon;
}

} // namespace Geometry
} // namespace Nemu
