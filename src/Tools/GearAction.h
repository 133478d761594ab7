#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPointF>

class GearGraphicsItem;

// Draws a gear: the press point is the centre, the drag sets the pitch circle radius, never
// below a quarter metre. The teeth are those of the settings. If the settings ask for it, a
// revolute joint on the axle follows as a second step of its own, to the body under the
// centre or to the background.
class GearAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    GearAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // The pitch circle radius for a drag to `point`, in metres.
    double radiusTo(const QPointF& point) const;

    GearGraphicsItem* preview;
    QPointF centre;
};
