#pragma once

#include "Tools/GraphicsViewAction.h"

// Explodes the body under the cursor at a click into triangles, squares or circles, as the
// settings say.
class ExplodeAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    ExplodeAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
