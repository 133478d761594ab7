#include "Tools/PulleyJointAction.h"

#include "Commands/PulleyJointCommand.h"
#include "Physics/BodyItem.h"
#include "Physics/JointItem.h"
#include "View/GraphicsScene.h"

#include <QGraphicsPathItem>
#include <QMouseEvent>
#include <QPainterPath>
#include <QPen>

namespace {
// The anchor on the first body, two ground anchors, the anchor on the second body.
const int pulleyPointCount = 4;
} // namespace

PulleyJointAction::PulleyJointAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/Pu.png")), tr("Create Pulley Joint"), parent,
                         graphicsView)
    , preview(new QGraphicsPathItem())
{
    // As wide as the joints themselves, in metres.
    preview->setPen(
        QPen(QBrush(Qt::green), JointItem::lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    addPreview(preview, PreviewPen::Own);
    reset();
}

void PulleyJointAction::reset()
{
    points.clear();
    setPreviewPoints(QPolygonF());
    preview->hide();
}

void PulleyJointAction::mouseMoveEvent(QMouseEvent* event)
{
    // Whatever the buttons: the gesture goes on between the clicks.
    if (points.isEmpty() || !preview->isVisible())
        return;
    setPreviewPoints(QPolygonF(points) << snappedScenePos(event->pos()));
}

void PulleyJointAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (points.isEmpty())
        preview->show();
    points.append(snappedScenePos(event->pos()));
    setPreviewPoints(points);
    if (points.size() < pulleyPointCount)
        return;
    BodyItem* first = movableBodyAt(points.first());
    BodyItem* second = movableBodyAt(points.last());
    if (first && second && first != second)
        push(new PulleyJointCommand(first, second, points));
    reset();
}

void PulleyJointAction::setPreviewPoints(const QPolygonF& rope)
{
    QPainterPath path;
    path.addPolygon(rope);
    preview->setPath(path);
}

BodyItem* PulleyJointAction::movableBodyAt(const QPointF& point) const
{
    BodyItem* body = graphicsScene()->bodyItemAt(point);
    return body && body->bodyType() != BodyItem::StaticBody ? body : nullptr;
}
