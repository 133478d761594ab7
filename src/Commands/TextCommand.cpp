#include "Commands/TextCommand.h"

#include "Physics/PolygonItem.h"

#include <QFontMetricsF>
#include <QObject>
#include <QPainterPath>
#include <QTransform>

namespace {
const double metresPerFontUnit = 0.1;
const double flatteningFactor = 2.5;
} // namespace

TextCommand::TextCommand(double x, double y, const QString& text, const QFont& font,
                         const QBrush& brush, QUndoCommand* parent)
    : ComplexCommand(QObject::tr("Text") + QStringLiteral(" (%1)").arg(text), parent)
{
    const QFontMetricsF metrics(font);
    double advance = 0.0;
    for (const QChar c : text) {
        // Font units run down, the world's y up.
        const QTransform place(metresPerFontUnit, 0.0, 0.0, -metresPerFontUnit, x + advance, y);
        for (const QPolygonF& outline : glyphPolygons(c, font, flatteningFactor)) {
            if (outline.size() <= 2)
                continue;
            auto* piece = new PolygonItem(place.map(outline));
            piece->setActive(false);
            piece->setBrush(brush);
            record(piece);
        }
        advance += metrics.horizontalAdvance(c) * metresPerFontUnit;
    }
}

QList<QPolygonF> TextCommand::glyphPolygons(QChar c, const QFont& font, double factor)
{
    QPainterPath path;
    path.addText(QPointF(0.0, 0.0), font, QString(c));
    QList<QPolygonF> polygons = path.toFillPolygons(QTransform::fromScale(factor, factor));
    const QTransform back = QTransform::fromScale(1.0 / factor, 1.0 / factor);
    for (QPolygonF& polygon : polygons)
        polygon = back.map(polygon);
    return polygons;
}
