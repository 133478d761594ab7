#include "Tools/GearAction.h"

#include "Application/Settings.h"
#include "Commands/GearCommand.h"
#include "Commands/RevoluteJointCommand.h"
#include "Physics/JointItem.h"
#include "Tools/GearContextWidget.h"
#include "View/GearGraphicsItem.h"
#include "View/GraphicsScene.h"

#include <QLineF>
#include <QMouseEvent>

namespace {
// Metres: the least pitch circle radius, which also makes a click without a drag a gear.
const double minimumRadius = 0.25;
// The drawing of the axle's joint takes this part of the gear's radius.
const double jointRadiusFactor = 0.2;
} // namespace

GearAction::GearAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/gear.png")), tr("Create Gear"), parent,
                         graphicsView)
    , preview(new GearGraphicsItem(0.0, 0.0, 0.0))
{
    contextWidget = new GearContextWidget();
    addPreview(preview);
    reset();
}

void GearAction::reset()
{
    preview->setGear(0.0, 0.0, 0.0);
    preview->hide();
}

void GearAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    pickBrush();
    preview->setBrush(brush);
    centre = snappedScenePos(event->pos());
    preview->setPos(centre);
    const Settings* settings = Settings::instance();
    preview->setGear(minimumRadius, settings->gearToothSize, settings->gearToothCountDivisor);
    preview->show();
}

void GearAction::mouseMoveEvent(QMouseEvent* event)
{
    if (!preview->isVisible())
        return;
    // The teeth stay those of the press.
    preview->setGear(radiusTo(snappedScenePos(event->pos())), preview->toothSize(),
                     preview->toothCountDivisor());
}

void GearAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !preview->isVisible())
        return;
    const double radius = radiusTo(snappedScenePos(event->pos()));
    // Looked up before the gear exists, which would otherwise be found.
    BodyItem* axleBody = graphicsScene()->bodyItemAt(centre);
    const Settings* settings = Settings::instance();
    auto* gear = new GearCommand(centre.x(), centre.y(), 0.0, radius, settings->gearToothSize,
                                 settings->gearToothCountDivisor, brush);
    push(gear);
    // A step of its own, so that the axle can be undone apart from the gear.
    if (settings->gearCreateRevoluteJoint)
        push(new RevoluteJointCommand(gear->item(), axleBody, centre, radius * jointRadiusFactor));
    reset();
}

double GearAction::radiusTo(const QPointF& point) const
{
    return qMax(minimumRadius, QLineF(centre, point).length());
}
