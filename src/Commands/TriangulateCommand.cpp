#include "Commands/TriangulateCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/PolygonItem.h"

#include <QObject>

TriangulateCommand::TriangulateCommand(BodyItem* body, QUndoCommand* parent)
    : ExplodeCommand(body, QObject::tr("Triangulate"), parent)
{
    const QList<QPolygonF> triangles = body->triangles();
    QList<QRectF> rects;
    rects.reserve(triangles.size());
    for (const QPolygonF& triangle : triangles)
        rects.append(triangle.boundingRect());
    if (!prepare(rects))
        return;
    for (const QPolygonF& triangle : triangles) {
        auto* piece = new PolygonItem(triangle);
        dress(piece);
        record(piece);
    }
}
