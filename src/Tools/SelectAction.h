#pragma once

#include "Tools/GraphicsViewAction.h"

// Selects with a click or a rubber band, and drags bodies through the world's mouse joint
// while the world runs. It never snaps and shows the plain arrow.
class SelectAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    SelectAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

protected:
    QPixmap cursorPixmap() override;
};
