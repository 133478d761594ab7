#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPen>
#include <QPolygonF>

class QGraphicsPathItem;

// Base of the tools that work along a stroke of the mouse, the brush and the eraser: the
// stroke shows with the tool's pen while the button is held, and on release its outline, as
// wide as the pen and with its caps, goes to the tool.
class StrokeAction : public GraphicsViewAction
{
    Q_OBJECT

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

protected:
    StrokeAction(const QIcon& icon, const QString& text, QObject* parent,
                 GraphicsView* graphicsView);

    // The pen of a new stroke; its width, in metres, and cap shape the outline.
    virtual QPen strokePen() = 0;
    // What the tool makes of a finished stroke's outline, in world coordinates.
    virtual void finish(const QPolygonF& outline) = 0;

    QGraphicsPathItem* preview;

private:
    QPolygonF stroke;
};
