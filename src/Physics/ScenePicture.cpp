#include "Physics/ScenePicture.h"

#include "Physics/BodyItem.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QPixmap>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace {
// The largest picture of one piece, in pixels per side.
const int maximumPieceSide = 8192;
// The largest picture of a whole area; a larger area is rendered at a lower resolution.
const double maximumAreaPixels = 4096.0 * 4096.0;
} // namespace

bool ScenePicture::isNeeded(const BodyItem* source)
{
    const QBrush brush = source->brush();
    return !brush.texture().isNull() && brush.transform().m11() != 0.0
        && brush.transform().m22() != 0.0;
}

ScenePicture::ScenePicture(BodyItem* source, const QRectF& area)
    : area(area)
    , horizontalScale(source->brush().transform().m11())
    , verticalScale(source->brush().transform().m22())
{
    QGraphicsScene* scene = source->graphicsItem()->scene();
    if (!scene || area.isEmpty() || !isNeeded(source))
        return;
    // A piece's picture shows the scene at the coarser of the texture's two scales.
    resolution = 1.0 / std::max(qAbs(horizontalScale), qAbs(verticalScale));
    const double pixels = area.width() * area.height() * resolution * resolution;
    if (pixels > maximumAreaPixels)
        resolution *= std::sqrt(maximumAreaPixels / pixels);
    const QSizeF size = area.size() * resolution;
    picture = QImage(qCeil(size.width()), qCeil(size.height()), QImage::Format_RGB32);
    picture.fill(Qt::white);
    source->graphicsItem()->setSelected(false);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    scene->render(&painter, QRectF(QPointF(), size), area, Qt::IgnoreAspectRatio);
}

QBrush ScenePicture::brush(const QRectF& rect) const
{
    const QSize size(qRound(qAbs(rect.width() / horizontalScale)),
                     qRound(qAbs(rect.height() / verticalScale)));
    if (picture.isNull() || size.isEmpty() || size.width() > maximumPieceSide
        || size.height() > maximumPieceSide)
        return QBrush(Qt::NoBrush);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    // As the scene renders a rectangle into a picture of another shape: at one scale, from
    // the top left corner, with white beyond.
    const double scale = std::min(size.width() / rect.width(), size.height() / rect.height());
    const QRectF source((rect.x() - area.x()) * resolution, (rect.y() - area.y()) * resolution,
                        rect.width() * resolution, rect.height() * resolution);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(0.0, 0.0, rect.width() * scale, rect.height() * scale), picture,
                      source);
    painter.end();
    QBrush result {QPixmap::fromImage(image)};
    result.setTransform(QTransform(horizontalScale, 0.0, 0.0, qAbs(verticalScale),
                                   -rect.width() * 0.5, -rect.height() * 0.5));
    return result;
}
