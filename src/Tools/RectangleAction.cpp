#include "Tools/RectangleAction.h"

#include "Commands/RectangleCommand.h"

#include <QGuiApplication>

namespace {
// Metres: the least side of a rectangle.
const double minimumSide = 0.1;
} // namespace

RectangleAction::RectangleAction(QObject* parent, GraphicsView* graphicsView)
    : BoxDragAction(QIcon(QStringLiteral(":/icons/rectangle.png")), tr("Create Rectangle"), parent,
                    graphicsView, Outline::Rectangle, minimumSide)
{
}

QRectF RectangleAction::dragBox(const QRectF& box, const QPointF& point, QString* toolTip) const
{
    // The press corner stays; the box is not normalised, so it can grow to any side.
    double dx = point.x() - box.x();
    double dy = point.y() - box.y();
    // Read from the application, not the event: Shift pressed or released between two moves
    // counts at the next move.
    if (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) {
        // A square of the shorter side; each side keeps its direction, and no drag at all
        // counts as a drag to the negative side.
        const double side = qMin(qAbs(dx), qAbs(dy));
        dx = dx > 0.0 ? side : -side;
        dy = dy > 0.0 ? side : -side;
    }
    *toolTip = tr("width=%1\nheight=%2").arg(lengthText(qAbs(dx)), lengthText(qAbs(dy)));
    return QRectF(box.x(), box.y(), dx, dy);
}

QUndoCommand* RectangleAction::createCommand(const QRectF& box) const
{
    const QPointF centre = box.center();
    return new RectangleCommand(centre.x(), centre.y(), 0.0, qAbs(box.width()), qAbs(box.height()),
                                brush);
}
