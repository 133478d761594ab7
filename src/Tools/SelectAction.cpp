#include "Tools/SelectAction.h"

#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"

#include <QMouseEvent>

SelectAction::SelectAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/mousePointer.png")), tr("Select/Move"),
                         parent, graphicsView)
{
    reset();
}

void SelectAction::reset()
{
    graphicsView->setCursor(QCursor());
    graphicsView->setDragMode(QGraphicsView::NoDrag);
}

void SelectAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF point = graphicsView->mapToScene(event->pos());
    PhysicsWorld* world = PhysicsWorld::instance();
    BodyItem* body = world->graphicsScene()->bodyItemAt(point);
    if (!body) {
        // The view handled the press in the old mode; hand it over again to start the band.
        graphicsView->setDragMode(QGraphicsView::RubberBandDrag);
        graphicsView->passMousePressEvent(event);
    } else if (!world->mouseJoint()) {
        world->createMouseJoint(body, point.x(), point.y());
        graphicsView->setCursor(Qt::ClosedHandCursor);
    }
}

void SelectAction::mouseMoveEvent(QMouseEvent* event)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    if (event->buttons() != Qt::LeftButton || !world->mouseJoint())
        return;
    const QPointF point = graphicsView->mapToScene(event->pos());
    world->setMouseJointTarget(point.x(), point.y());
}

void SelectAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        PhysicsWorld::instance()->destroyMouseJoint();
    reset();
}

QPixmap SelectAction::cursorPixmap()
{
    return QPixmap();
}
