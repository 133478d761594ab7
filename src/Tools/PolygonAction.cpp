#include "Tools/PolygonAction.h"

#include "Application/Settings.h"
#include "Commands/PolygonCommand.h"

#include <QGraphicsPolygonItem>
#include <QLineF>
#include <QMouseEvent>

namespace {
// Coordinates closer than this, in metres, count as the same point.
const double samePointTolerance = 1e-12;

bool samePoint(const QPointF& a, const QPointF& b)
{
    return qAbs(a.x() - b.x()) <= samePointTolerance && qAbs(a.y() - b.y()) <= samePointTolerance;
}
} // namespace

PolygonAction::PolygonAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/polygon.png")), tr("Create Polygon"), parent,
                         graphicsView)
    , preview(new QGraphicsPolygonItem())
    , invalidBrush(Qt::black, Qt::NoBrush)
{
    invalidBrush.setTransform(QTransform(TextureMatrix));
    addPreview(preview);
    reset();
}

bool PolygonAction::crossesItself(const QPolygonF& polygon)
{
    QList<QLineF> edges;
    for (int i = 0; i + 1 < polygon.size(); ++i)
        edges.append(QLineF(polygon.at(i), polygon.at(i + 1)));
    if (!polygon.isEmpty() && !samePoint(polygon.last(), polygon.first()))
        edges.append(QLineF(polygon.last(), polygon.first()));
    for (int i = 0; i < edges.size(); ++i) {
        for (int j = i + 1; j < edges.size(); ++j) {
            const QLineF& a = edges.at(i);
            const QLineF& b = edges.at(j);
            if (samePoint(a.p2(), b.p1()) || samePoint(b.p2(), a.p1()))
                continue;
            if (a.intersects(b, nullptr) == QLineF::BoundedIntersection)
                return true;
        }
    }
    return false;
}

void PolygonAction::reset()
{
    points.clear();
    preview->setPolygon(QPolygonF());
    preview->hide();
}

void PolygonAction::mouseMoveEvent(QMouseEvent* event)
{
    // Whatever the buttons: the gesture goes on between the clicks.
    if (points.isEmpty() || !preview->isVisible())
        return;
    const QPolygonF shown = QPolygonF(points) << snappedScenePos(event->pos());
    preview->setBrush(crossesItself(shown) ? invalidBrush : brush);
    preview->setPolygon(shown);
}

void PolygonAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        if (points.isEmpty()) {
            pickBrush();
            preview->setBrush(brush);
            preview->show();
        }
        points.append(snappedScenePos(event->pos()));
        preview->setPolygon(points);
    } else if (event->button() == Qt::RightButton) {
        points.append(snappedScenePos(event->pos()));
        if (points.size() > 2 && !crossesItself(points))
            push(new PolygonCommand(points, brush));
        reset();
    }
}
