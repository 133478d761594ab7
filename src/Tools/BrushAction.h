#pragma once

#include "Tools/StrokeAction.h"

// Paints a body with a stroke of the mouse: the stroke's outline, as wide as the brush size
// and with round ends, becomes one polygon body of the stroke's colour.
class BrushAction : public StrokeAction
{
    Q_OBJECT

public:
    BrushAction(QObject* parent, GraphicsView* graphicsView);

protected:
    // A fresh random colour for each stroke.
    QPen strokePen() override;
    void finish(const QPolygonF& outline) override;
};
