#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QRectF>

class QAbstractGraphicsShapeItem;

// Base of the tools that draw a body by dragging out a box from the press point: rectangles,
// circles and balloons. It owns the gesture: the preview, a rectangle or an ellipse in the
// box, its size tooltip, and the minimum size below which a release makes nothing. The
// subclass says how a drag point shapes the box and which command a finished box makes. The
// gesture is in progress while the preview is shown.
class BoxDragAction : public GraphicsViewAction
{
    Q_OBJECT

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

protected:
    enum class Outline { Rectangle, Ellipse };

    // minimumSize: metres, the least width and height of a body that is made.
    BoxDragAction(const QIcon& icon, const QString& text, QObject* parent,
                  GraphicsView* graphicsView, Outline outline, double minimumSize);

    // The brush of a new gesture, set on the preview at the press; by default a fresh one
    // in `brush`.
    virtual QBrush gestureBrush();
    // The box after a drag to `point`, from the box so far, whose corner or centre is the
    // press point; and the sizes for the tooltip.
    virtual QRectF dragBox(const QRectF& box, const QPointF& point, QString* toolTip) const = 0;
    // The command that makes the body of a finished box, which may be unnormalised.
    virtual QUndoCommand* createCommand(const QRectF& box) const = 0;

    QAbstractGraphicsShapeItem* preview() const { return previewItem; }
    QRectF box() const { return currentBox; }

private:
    void setBox(const QRectF& box);

    const Outline outline;
    const double minimumSize;
    QAbstractGraphicsShapeItem* previewItem;
    // Kept here because the rectangle and the ellipse item share no setter for it.
    QRectF currentBox;
};
