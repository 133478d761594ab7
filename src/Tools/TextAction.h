#pragma once

#include "Tools/GraphicsViewAction.h"

class QGraphicsPathItem;

// Stamps the text of the settings, in their font, as bodies: the outline follows the mouse,
// and a click puts it down, its base line starting at the cursor.
class TextAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    TextAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // Shows the text and font that the settings hold now.
    void onParameterChanged();

private:
    QGraphicsPathItem* preview;
};
