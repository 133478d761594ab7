#include "Tools/RevoluteJointAction.h"

#include "Application/Settings.h"
#include "Commands/RevoluteJointCommand.h"
#include "Tools/RevoluteJointContextWidget.h"
#include "View/GraphicsScene.h"
#include "View/RevoluteJointGraphicsItem.h"

#include <QMouseEvent>

RevoluteJointAction::RevoluteJointAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/R.png")), tr("Create Revolute Joint"),
                         parent, graphicsView)
    , preview(new RevoluteJointGraphicsItem(Settings::instance()->revoluteJointRadius))
{
    auto* strip = new RevoluteJointContextWidget();
    connect(strip, &RevoluteJointContextWidget::revoluteJointRadiusChanged, this,
            &RevoluteJointAction::onRadiusChanged);
    contextWidget = strip;
    addPreview(preview, PreviewPen::Own);
    reset();
}

void RevoluteJointAction::reset()
{
    preview->setRadius(Settings::instance()->revoluteJointRadius);
    preview->hide();
}

void RevoluteJointAction::mouseMoveEvent(QMouseEvent* event)
{
    // With or without a button: the joint is placed by a click, not a drag.
    preview->setPos(snappedScenePos(event->pos()));
    preview->show();
}

void RevoluteJointAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (!preview->isVisible())
        return;
    const QPointF point = snappedScenePos(event->pos());
    const QList<BodyItem*> bodies = graphicsScene()->bodyItemsAt(point);
    // Off any body the joint to be made stays under the cursor.
    if (bodies.isEmpty())
        return;
    push(new RevoluteJointCommand(bodies.first(), bodies.value(1, nullptr), point,
                                  Settings::instance()->revoluteJointRadius));
    reset();
}

void RevoluteJointAction::onRadiusChanged(double radius)
{
    preview->setRadius(radius);
}
