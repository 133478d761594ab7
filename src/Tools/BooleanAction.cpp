#include "Tools/BooleanAction.h"

#include "Commands/BooleanCommand.h"
#include "Physics/BodyItem.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"

#include <QGraphicsPathItem>
#include <QMouseEvent>
#include <QPen>

namespace {
const double previewPenWidth = 0.075; // metres
// The preview lies just above the lower body, whose place the result takes.
const double previewZOffset = 0.1;
} // namespace

BooleanAction::BooleanAction(const QIcon& icon, const QString& text, QObject* parent,
                             GraphicsView* graphicsView)
    : GraphicsViewAction(icon, text, parent, graphicsView)
    , preview(new QGraphicsPathItem())
{
    preview->setPen(
        QPen(QBrush(Qt::black), previewPenWidth, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin));
    addPreview(preview, PreviewPen::Own, 1.0);
    reset();
}

void BooleanAction::reset()
{
    preview->setPath(QPainterPath());
    preview->hide();
}

void BooleanAction::mouseMoveEvent(QMouseEvent* event)
{
    const QList<BodyItem*> bodies
        = graphicsScene()->bodyItemsAt(graphicsView->mapToScene(event->pos()));
    if (bodies.size() < 2) {
        reset();
        return;
    }
    QPainterPath path;
    for (const QPolygonF& polygon :
         operate(bodies.at(0)->worldPolygon(), bodies.at(1)->worldPolygon()))
        path.addPolygon(polygon);
    path.closeSubpath();
    preview->setPath(path.simplified());
    preview->setZValue(bodies.at(1)->zValue() + previewZOffset);
    preview->setBrush(bodies.at(1)->brush());
    preview->show();
}

void BooleanAction::mouseReleaseEvent(QMouseEvent* event)
{
    reset();
    const QList<BodyItem*> bodies
        = graphicsScene()->bodyItemsAt(graphicsView->mapToScene(event->pos()));
    if (bodies.size() > 1)
        push(new BooleanCommand(bodies.at(1), bodies.at(0), operationType()));
}
