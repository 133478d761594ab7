#include "Commands/CirclifyCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/CircleItem.h"

#include <QObject>

CirclifyCommand::CirclifyCommand(BodyItem* body, double size, QUndoCommand* parent)
    : ExplodeCommand(body, QObject::tr("Circlify"), parent)
{
    const QList<QRectF> rects = gridRects(body->worldPolygon(), size, Qt::WindingFill);
    if (!prepare(rects))
        return;
    for (const QRectF& rect : rects) {
        auto* piece = new CircleItem(rect.center().x(), rect.center().y(), 0.0, size / 2.0);
        dress(piece);
        // After the body's values, which would show the line again, and before the record.
        piece->setShowLine(false);
        record(piece);
    }
}
