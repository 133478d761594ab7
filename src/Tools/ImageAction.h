#pragma once

#include "Tools/GraphicsViewAction.h"

class QGraphicsPixmapItem;

// Stamps the picture of the settings as bodies shaped like its opaque parts: the picture
// follows the mouse at its scale, and a click puts it down, its top left corner at the cursor.
class ImageAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    ImageAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // A file that cannot be read leaves the picture shown before.
    void onImageFilenameChanged(QString filename);
    // Metres per pixel.
    void onImageScaleChanged(double scale);

private:
    QGraphicsPixmapItem* preview;
};
