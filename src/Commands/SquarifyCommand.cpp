#include "Commands/SquarifyCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/RectangleItem.h"

#include <QObject>

SquarifyCommand::SquarifyCommand(BodyItem* body, double size, QUndoCommand* parent)
    : ExplodeCommand(body, QObject::tr("Squarify"), parent)
{
    const QList<QRectF> rects = gridRects(body->worldPolygon(), size, Qt::WindingFill);
    if (!prepare(rects))
        return;
    for (const QRectF& rect : rects) {
        auto* piece = new RectangleItem(rect.center().x(), rect.center().y(), 0.0, size, size);
        dress(piece);
        record(piece);
    }
}
