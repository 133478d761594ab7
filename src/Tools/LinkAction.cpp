#include "Tools/LinkAction.h"

#include "View/CosmeticPens.h"

#include <QGraphicsItemGroup>
#include <QLineF>
#include <QMouseEvent>

LinkAction::LinkAction(const QIcon& icon, const QString& text, QObject* parent,
                       GraphicsView* graphicsView)
    : GraphicsViewAction(icon, text, parent, graphicsView)
    , preview(new QGraphicsItemGroup())
{
    addPreview(preview);
    reset();
}

void LinkAction::reset()
{
    points.clear();
    preview->hide();
    qDeleteAll(preview->childItems());
}

void LinkAction::addToPreview(QGraphicsItem* part)
{
    CosmeticPens::apply(part);
    preview->addToGroup(part);
}

void LinkAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    points.append(snappedScenePos(event->pos()));
    showLink();
    preview->show();
}

void LinkAction::mouseMoveEvent(QMouseEvent* event)
{
    if (points.isEmpty() || !preview->isVisible())
        return;
    const QLineF toMouse(points.last(), snappedScenePos(event->pos()));
    if (!(toMouse.length() > linkLength()))
        return;
    points.append(points.last() + (toMouse.p2() - toMouse.p1()) / toMouse.length() * linkLength());
    showLink();
}

void LinkAction::mouseReleaseEvent(QMouseEvent*)
{
    if (points.size() >= 3 && preview->isVisible())
        push(command());
    reset();
}
