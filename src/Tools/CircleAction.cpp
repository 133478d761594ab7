#include "Tools/CircleAction.h"

#include "Commands/CircleCommand.h"

#include <QLineF>

namespace {
// Metres: the least diameter of a round body.
const double minimumDiameter = 0.001;
} // namespace

CircleAction::CircleAction(QObject* parent, GraphicsView* graphicsView)
    : CircleAction(QIcon(QStringLiteral(":/icons/circle.png")), tr("Create Circle"), parent,
                   graphicsView)
{
}

CircleAction::CircleAction(const QIcon& icon, const QString& text, QObject* parent,
                           GraphicsView* graphicsView)
    : BoxDragAction(icon, text, parent, graphicsView, Outline::Ellipse, minimumDiameter)
{
}

QRectF CircleAction::dragBox(const QRectF& box, const QPointF& point, QString* toolTip) const
{
    // The box stays centred on the press point.
    const QPointF centre = box.center();
    const double radius = QLineF(centre, point).length();
    *toolTip = tr("radius=%1").arg(lengthText(radius));
    return QRectF(centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius);
}

QUndoCommand* CircleAction::createCommand(const QRectF& box) const
{
    const QPointF centre = box.center();
    return new CircleCommand(centre.x(), centre.y(), 0.0, box.width() / 2.0, brush);
}
