#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPoint>

class QRubberBand;

// Takes items out of the scene: a click takes the item under the cursor, a drag every item
// that the band touches, with the joints and forces that hang on the bodies among them. The
// band is drawn in view pixels.
class RemoveAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    RemoveAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QRubberBand* band;
    QPoint pressPoint;
};
