#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPolygonF>

class QGraphicsPolygonItem;

// Draws a polygon over several clicks: each left click sets a point, a right click sets the
// last one and closes the figure. An outline that crosses itself shows without fill while the
// mouse moves, and at the close it, like one of fewer than three points, makes nothing.
class PolygonAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    PolygonAction(QObject* parent, GraphicsView* graphicsView);

    // Whether two edges of the closed outline cross; edges that share an end never count.
    static bool crossesItself(const QPolygonF& polygon);

public slots:
    void reset() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QGraphicsPolygonItem* preview;
    QPolygonF points;
    // No fill, so that a crossing outline shows as a line only.
    QBrush invalidBrush;
};
