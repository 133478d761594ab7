#pragma once

#include "Tools/CircleAction.h"

#include <QColor>

// Draws a balloon as a circle is drawn. The preview shades from the balloon's colour in the
// middle to white at the rim; the balloon itself is plain.
class BalloonAction : public CircleAction
{
    Q_OBJECT

public:
    BalloonAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void mouseMoveEvent(QMouseEvent* event) override;

protected:
    QBrush gestureBrush() override;
    QUndoCommand* createCommand(const QRectF& box) const override;

private:
    // The colour of the gesture, new at each press.
    QColor color;
};
