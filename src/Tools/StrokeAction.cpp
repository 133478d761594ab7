#include "Tools/StrokeAction.h"

#include <QGraphicsPathItem>
#include <QLineF>
#include <QMouseEvent>
#include <QPainterPathStroker>

namespace {
// Metres: stroke points closer than this to the last one are dropped.
const double strokeStep = 0.25;
const double curveThreshold = 0.5;
} // namespace

StrokeAction::StrokeAction(const QIcon& icon, const QString& text, QObject* parent,
                           GraphicsView* graphicsView)
    : GraphicsViewAction(icon, text, parent, graphicsView)
    , preview(new QGraphicsPathItem())
{
    addPreview(preview, PreviewPen::Own);
    reset();
}

void StrokeAction::reset()
{
    stroke.clear();
    preview->setPath(QPainterPath());
    preview->hide();
}

void StrokeAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    stroke.append(snappedScenePos(event->pos()));
    preview->setPen(strokePen());
    preview->show();
}

void StrokeAction::mouseMoveEvent(QMouseEvent* event)
{
    if (!preview->isVisible() || stroke.isEmpty())
        return;
    const QPointF point = snappedScenePos(event->pos());
    if (QLineF(stroke.last(), point).length() <= strokeStep)
        return;
    stroke.append(point);
    QPainterPath path;
    path.addPolygon(stroke);
    preview->setPath(path);
}

void StrokeAction::mouseReleaseEvent(QMouseEvent*)
{
    if (!preview->isVisible() || stroke.isEmpty())
        return;
    QPainterPathStroker stroker;
    stroker.setCapStyle(preview->pen().capStyle());
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setWidth(preview->pen().widthF());
    stroker.setCurveThreshold(curveThreshold);
    const QList<QPolygonF> outlines
        = stroker.createStroke(preview->path()).simplified().toSubpathPolygons(QTransform());
    // Only the first outline counts; a stroke rarely gives more than one.
    if (!outlines.isEmpty())
        finish(outlines.first());
    reset();
}
