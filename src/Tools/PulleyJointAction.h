#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPolygonF>

class BodyItem;
class QGraphicsPathItem;

// Joins two movable bodies with a pulley over four clicks: the anchor on the first body, the
// two ground anchors, the anchor on the second body. Any other outcome of the four clicks
// makes nothing and starts over.
class PulleyJointAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    PulleyJointAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // Shows the rope through the points.
    void setPreviewPoints(const QPolygonF& rope);
    // The body under a point if it can move, else null.
    BodyItem* movableBodyAt(const QPointF& point) const;

    QGraphicsPathItem* preview;
    QPolygonF points;
};
