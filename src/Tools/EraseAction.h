#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPolygonF>

class QGraphicsPathItem;

// Rubs bodies away along a stroke of the mouse: the stroke, as wide as the eraser size, is
// cut out of every body it touches when the button is released.
class EraseAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    EraseAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPolygonF stroke;
    QGraphicsPathItem* preview;
};
