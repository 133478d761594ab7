#pragma once

#include "Tools/StrokeAction.h"

// Rubs bodies away along a stroke of the mouse: the stroke, as wide as the eraser size, is
// cut out of every body it touches when the button is released.
class EraseAction : public StrokeAction
{
    Q_OBJECT

public:
    EraseAction(QObject* parent, GraphicsView* graphicsView);

protected:
    QPen strokePen() override;
    void finish(const QPolygonF& outline) override;
};
