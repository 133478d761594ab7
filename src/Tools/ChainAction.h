#pragma once

#include "Tools/LinkAction.h"

// Draws a chain along the mouse path: circles that touch, joined by distance joints, pinned
// to the background as the settings say.
class ChainAction : public LinkAction
{
    Q_OBJECT

public:
    ChainAction(QObject* parent, GraphicsView* graphicsView);

protected:
    double linkLength() const override;
    void showLink() override;
    QUndoCommand* command() const override;
};
