#include "Tools/RemoveAction.h"

#include "Commands/RemoveCommand.h"
#include "View/GraphicsView.h"

#include <QMouseEvent>
#include <QRubberBand>

RemoveAction::RemoveAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/remove.png")), tr("Remove"), parent,
                         graphicsView)
    , band(new QRubberBand(QRubberBand::Rectangle, graphicsView))
{
    reset();
}

void RemoveAction::reset()
{
    band->setGeometry(QRect());
    band->hide();
}

void RemoveAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    pressPoint = event->pos();
    band->setGeometry(QRect(pressPoint, QSize(-1, -1)));
    band->show();
}

void RemoveAction::mouseMoveEvent(QMouseEvent* event)
{
    if (band->isVisible())
        band->setGeometry(QRect(pressPoint, event->pos()).normalized());
}

void RemoveAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (!band->isVisible())
        return;
    // A click gives a rectangle without area, which takes the item under the point.
    push(new RemoveCommand(
        QRectF(graphicsView->mapToScene(pressPoint), graphicsView->mapToScene(event->pos()))
            .normalized()));
    reset();
}
