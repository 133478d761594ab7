#pragma once

#include "Tools/GraphicsViewAction.h"

// Opens a plot of the speed of the body under the cursor at each click, one more window each
// time.
class PlotAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    PlotAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
