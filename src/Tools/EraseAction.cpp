#include "Tools/EraseAction.h"

#include "Application/Settings.h"
#include "Commands/EraseCommand.h"

#include <QGraphicsPathItem>
#include <QLineF>
#include <QMouseEvent>
#include <QPainterPathStroker>
#include <QPen>

namespace {
// Metres: stroke points closer than this to the last one are dropped.
const double strokeStep = 0.25;
const double curveThreshold = 0.5;
} // namespace

EraseAction::EraseAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/eraser.png")), tr("Erase Item"), parent,
                         graphicsView)
    , preview(new QGraphicsPathItem())
{
    addPreview(preview, PreviewPen::Own);
    reset();
}

void EraseAction::reset()
{
    stroke.clear();
    preview->setPath(QPainterPath());
    preview->hide();
}

void EraseAction::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    stroke.append(snappedScenePos(event->pos()));
    preview->setPen(QPen(QBrush(Qt::black), Settings::instance()->eraseSize, Qt::DashLine,
                         Qt::FlatCap, Qt::MiterJoin));
    preview->show();
}

void EraseAction::mouseMoveEvent(QMouseEvent* event)
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

void EraseAction::mouseReleaseEvent(QMouseEvent*)
{
    if (!preview->isVisible() || stroke.isEmpty())
        return;
    QPainterPathStroker stroker;
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setWidth(Settings::instance()->eraseSize);
    stroker.setCurveThreshold(curveThreshold);
    const QList<QPolygonF> outlines
        = stroker.createStroke(preview->path()).simplified().toSubpathPolygons(QTransform());
    // Only the first outline is cut; a stroke rarely gives more than one.
    if (!outlines.isEmpty())
        push(new EraseCommand(outlines.first()));
    reset();
}
