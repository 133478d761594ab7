#pragma once

#include "Tools/LinkAction.h"

// Draws a rope along the mouse path: rectangles end to end, joined by revolute joints,
// pinned to the background as the settings say. The preview shows the links thinner than the
// rope will be.
class RopeAction : public LinkAction
{
    Q_OBJECT

public:
    RopeAction(QObject* parent, GraphicsView* graphicsView);

protected:
    double linkLength() const override;
    void showLink() override;
    QUndoCommand* command() const override;
};
