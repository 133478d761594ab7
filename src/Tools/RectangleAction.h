#pragma once

#include "Tools/BoxDragAction.h"

// Draws a rectangle from corner to corner; Shift held makes it a square. Sides under 0.1 m
// make nothing.
class RectangleAction : public BoxDragAction
{
    Q_OBJECT

public:
    RectangleAction(QObject* parent, GraphicsView* graphicsView);

protected:
    QRectF dragBox(const QRectF& box, const QPointF& point, QString* toolTip) const override;
    QUndoCommand* createCommand(const QRectF& box) const override;
};
