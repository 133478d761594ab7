#include "Commands/ImageCommand.h"

#include "Physics/PolygonItem.h"

#include <QFileInfo>
#include <QGraphicsPixmapItem>
#include <QLineF>
#include <QObject>
#include <QPainterPath>
#include <QPixmap>

ImageCommand::ImageCommand(double x, double y, double, const QString& filename,
                           double polygonThreshold, double scale, QUndoCommand* parent)
    : ComplexCommand(
        QObject::tr("Image") + QStringLiteral(" (%1)").arg(QFileInfo(filename).baseName()), parent)
{
    const QPixmap picture(filename);
    if (picture.isNull())
        return;
    const QGraphicsPixmapItem item(picture);
    // The outline of the opaque pixels, one polygon per separate region with its holes joined
    // in, so that the gaps of a wheel stay open; a picture without alpha gives its whole
    // rectangle. Pixels run down, the world's y up.
    const QList<QPolygonF> regions
        = item.shape().simplified().toFillPolygons(QTransform(scale, 0.0, 0.0, -scale, 0.0, 0.0));
    const QSizeF size = item.boundingRect().size();
    // In float, as the brushes of earlier versions were placed.
    const float scaleF = float(scale);
    QBrush brush(picture);
    brush.setTransform(QTransform(scaleF, 0.0, 0.0, -scale, float(-(size.width() / 2) * scale),
                                  float(-(size.height() / 2) * scale)));
    for (const QPolygonF& region : regions) {
        auto* piece = new PolygonItem(decimate(region.translated(x, y), polygonThreshold));
        piece->setBrush(brush);
        piece->setActive(false);
        record(piece);
    }
}

QPolygonF ImageCommand::decimate(const QPolygonF& polygon, double distance)
{
    QPolygonF kept;
    const int count = polygon.size();
    if (count < 2)
        return kept;
    int i = 0;
    do {
        kept.append(polygon.at(i));
        int k = i + 1;
        while (k < count - 1 && QLineF(polygon.at(i), polygon.at(k)).length() < distance)
            ++k;
        i = k + 1;
    } while (i < count - 1);
    return kept;
}
