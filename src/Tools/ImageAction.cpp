#include "Tools/ImageAction.h"

#include "Application/Settings.h"
#include "Commands/ImageCommand.h"
#include "Tools/ImageContextWidget.h"

#include <QGraphicsPixmapItem>
#include <QMouseEvent>

ImageAction::ImageAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/image.png")), tr("Create Image"), parent,
                         graphicsView)
    , preview(new QGraphicsPixmapItem())
{
    auto* strip = new ImageContextWidget();
    connect(strip, &ImageContextWidget::imageFilenameChanged, this,
            &ImageAction::onImageFilenameChanged);
    connect(strip, &ImageContextWidget::imageScaleChanged, this, &ImageAction::onImageScaleChanged);
    contextWidget = strip;
    addPreview(preview, PreviewPen::Own);
    reset();
}

void ImageAction::onImageFilenameChanged(QString filename)
{
    const QPixmap picture(filename);
    if (!picture.isNull())
        preview->setPixmap(picture);
}

void ImageAction::onImageScaleChanged(double scale)
{
    // Pixels run down, the world's y up.
    preview->setTransform(QTransform(scale, 0.0, 0.0, -scale, 0.0, 0.0));
}

void ImageAction::reset()
{
    onImageFilenameChanged(Settings::instance()->imageFilename);
    onImageScaleChanged(Settings::instance()->imageScale);
    preview->hide();
}

void ImageAction::mouseMoveEvent(QMouseEvent* event)
{
    preview->setPos(snappedScenePos(event->pos()));
    preview->show();
}

void ImageAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (preview->isVisible()) {
        const Settings* settings = Settings::instance();
        const QPointF point = snappedScenePos(event->pos());
        push(new ImageCommand(point.x(), point.y(), 0.0, settings->imageFilename,
                              settings->imagePolygonThreshold, settings->imageScale));
    }
    reset();
}
