#pragma once

#include "Tools/GraphicsViewAction.h"

// Puts a camera on the body under the cursor at a click: the main view follows it, or a window
// of its own does, as the settings say.
class CameraAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    CameraAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
