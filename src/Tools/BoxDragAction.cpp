#include "Tools/BoxDragAction.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsRectItem>
#include <QMouseEvent>

BoxDragAction::BoxDragAction(const QIcon& icon, const QString& text, QObject* parent,
                             GraphicsView* graphicsView, Outline outline, double minimumSize)
    : GraphicsViewAction(icon, text, parent, graphicsView)
    , outline(outline)
    , minimumSize(minimumSize)
{
    if (outline == Outline::Rectangle)
        previewItem = new QGraphicsRectItem();
    else
        previewItem = new QGraphicsEllipseItem();
    addPreview(previewItem);
    BoxDragAction::reset();
}

void BoxDragAction::reset()
{
    setBox(QRectF());
    previewItem->hide();
    hideSizeToolTip();
}

void BoxDragAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    previewItem->setBrush(gestureBrush());
    setBox(QRectF(snappedScenePos(event->pos()), QSizeF(0.0, 0.0)));
    previewItem->show();
}

void BoxDragAction::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() != Qt::LeftButton || !previewItem->isVisible())
        return;
    QString toolTip;
    const QRectF dragged = dragBox(currentBox, snappedScenePos(event->pos()), &toolTip);
    showSizeToolTip(event->pos(), toolTip);
    setBox(dragged);
}

void BoxDragAction::mouseReleaseEvent(QMouseEvent*)
{
    if (previewItem->isVisible() && qAbs(currentBox.width()) >= minimumSize
        && qAbs(currentBox.height()) >= minimumSize)
        push(createCommand(currentBox));
    reset();
}

QBrush BoxDragAction::gestureBrush()
{
    pickBrush();
    return brush;
}

void BoxDragAction::setBox(const QRectF& box)
{
    currentBox = box;
    if (outline == Outline::Rectangle)
        static_cast<QGraphicsRectItem*>(previewItem)->setRect(box);
    else
        static_cast<QGraphicsEllipseItem*>(previewItem)->setRect(box);
}
