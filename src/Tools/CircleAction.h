#pragma once

#include "Tools/BoxDragAction.h"

// Draws a circle: the press point is the centre, the drag sets the radius. A circle under
// 0.001 m across makes nothing.
class CircleAction : public BoxDragAction
{
    Q_OBJECT

public:
    CircleAction(QObject* parent, GraphicsView* graphicsView);

protected:
    // For the tools that draw other round bodies in the same way.
    CircleAction(const QIcon& icon, const QString& text, QObject* parent,
                 GraphicsView* graphicsView);

    QRectF dragBox(const QRectF& box, const QPointF& point, QString* toolTip) const override;
    QUndoCommand* createCommand(const QRectF& box) const override;
};
