#pragma once

#include "Tools/GraphicsViewAction.h"

class RevoluteJointGraphicsItem;

// Pins bodies together with one click: the two top bodies under the point, or a single one to
// the background. The joint to be made follows the cursor from the first move on, drawn at the
// radius of the settings.
class RevoluteJointAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    RevoluteJointAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // The radius of the drawing, in metres, as the parameter strip changes it.
    void onRadiusChanged(double radius);

private:
    RevoluteJointGraphicsItem* preview;
};
