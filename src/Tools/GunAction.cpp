#include "Tools/GunAction.h"

#include "Commands/LinearImpulseCommand.h"
#include "Physics/BodyItem.h"
#include "View/GraphicsScene.h"
#include "View/VectorGraphicsItem.h"

#include <QMouseEvent>

namespace {
// Metres per second gained per metre dragged.
const double speedPerMetre = 5.0;
} // namespace

GunAction::GunAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/gun.png")), tr("Shoot Item"), parent,
                         graphicsView)
    , preview(new VectorGraphicsItem(QLineF()))
{
    addPreview(preview);
    reset();
}

void GunAction::reset()
{
    target = nullptr;
    preview->setLine(QLineF());
    preview->hide();
}

void GunAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF point = snappedScenePos(event->pos());
    target = graphicsScene()->bodyItemAt(point);
    if (!target)
        return;
    preview->setLine(QLineF(point, point));
    preview->show();
}

void GunAction::mouseMoveEvent(QMouseEvent* event)
{
    if (!target || !preview->isVisible())
        return;
    // The arrow points from the press point away from the mouse.
    QLineF line(preview->line().p1(), snappedScenePos(event->pos()));
    line.setAngle(line.angle() + 180.0);
    preview->setLine(line);
}

void GunAction::mouseReleaseEvent(QMouseEvent*)
{
    if (!target || !preview->isVisible())
        return;
    QLineF impulse = preview->line();
    if (!impulse.isNull())
        impulse.setLength(impulse.length() * target->mass() * speedPerMetre);
    push(new LinearImpulseCommand(target, impulse));
    reset();
}
