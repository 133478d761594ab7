#include "Tools/BodyPairAction.h"

#include "View/GraphicsScene.h"

#include <QGraphicsItem>
#include <QMouseEvent>

void BodyPairAction::reset()
{
    first = nullptr;
    setPreviewLine(QLineF());
    preview()->hide();
}

void BodyPairAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    start = snappedScenePos(event->pos());
    first = graphicsScene()->bodyItemAt(start);
    if (!first)
        return;
    setPreviewLine(QLineF(start, start));
    preview()->show();
}

void BodyPairAction::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() != Qt::LeftButton || !preview()->isVisible())
        return;
    setPreviewLine(QLineF(start, snappedScenePos(event->pos())));
}

void BodyPairAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (!preview()->isVisible())
        return;
    const QPointF end = snappedScenePos(event->pos());
    if (BodyItem* body = firstBody()) {
        BodyItem* second = graphicsScene()->bodyItemAt(end);
        if (second != body) {
            if (QUndoCommand* command = createCommand(body, second, QLineF(start, end)))
                push(command);
        }
    }
    reset();
}

BodyItem* BodyPairAction::firstBody() const
{
    // An undone body stays in the world, inactive and hidden: as good as gone for a joint.
    return first && first->isActive() ? first.data() : nullptr;
}
