#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPointer>

class BodyItem;
class VectorGraphicsItem;

// Shoots a body like a slingshot: press on the body, drag away from where it is to fly, and
// release. It gains five times the drag length in metres per second, whatever its mass, and
// is pushed where it was pressed, so a shot off its centre also spins it.
class GunAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    GunAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // Guarded: a script may remove the body in the middle of the gesture.
    QPointer<BodyItem> target;
    VectorGraphicsItem* preview;
};
