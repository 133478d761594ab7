#include "Commands/ExplodeCommand.h"

#include "Application/Application.h"
#include "Commands/CirclifyCommand.h"
#include "Commands/SquarifyCommand.h"
#include "Commands/TriangulateCommand.h"
#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/ScenePicture.h"

#include <QObject>
#include <QPolygonF>

ExplodeCommand::ExplodeCommand(BodyItem* replacedBody, const QString& text, QUndoCommand* parent)
    : ComplexCommand(text, parent)
    , replacedBody(replacedBody)
    , dependents(PhysicsWorld::instance()->dependentPhysicsItems(replacedBody))
{
}

ExplodeCommand::~ExplodeCommand() = default;

ExplodeCommand* ExplodeCommand::create(BodyItem* body, int method, double size,
                                       QUndoCommand* parent)
{
    ExplodeCommand* command = nullptr;
    switch (method) {
    case Triangulate:
        command = new TriangulateCommand(body, parent);
        break;
    case Squarify:
        command = new SquarifyCommand(body, size, parent);
        break;
    case Circlify:
        command = new CirclifyCommand(body, size, parent);
        break;
    default:
        return nullptr;
    }
    if (command->refusedPieceCount() == 0)
        return command;
    Application::report(QObject::tr("Not exploded: %1 pieces would be made, more than %2.")
                            .arg(command->refusedPieceCount())
                            .arg(maximumPieces),
                        Brivane::Warning);
    delete command;
    return nullptr;
}

QList<QRectF> ExplodeCommand::gridRects(const QPolygonF& polygon, double size,
                                        Qt::FillRule fillRule)
{
    QList<QRectF> rects;
    const QRectF bounds = polygon.boundingRect();
    if (!(size > 0.0))
        return rects;
    // Counted steps, not sums, so that rounding cannot add or drop a row.
    const int columns = int(bounds.width() / size);
    const int rows = int(bounds.height() / size);
    for (int row = 0; row <= rows; ++row) {
        const double y = bounds.y() + row * size;
        for (int column = 0; column <= columns; ++column) {
            const double x = bounds.x() + column * size;
            for (const QPointF& corner : {QPointF(x, y), QPointF(x + size, y),
                                          QPointF(x + size, y + size), QPointF(x, y + size)}) {
                if (polygon.containsPoint(corner, fillRule)) {
                    rects.append(QRectF(x, y, size, size));
                    break;
                }
            }
        }
    }
    return rects;
}

bool ExplodeCommand::prepare(const QList<QRectF>& pieceRects)
{
    if (pieceRects.size() > maximumPieces) {
        refusedCount = pieceRects.size();
        return false;
    }
    if (!replacedBody || !ScenePicture::isNeeded(replacedBody))
        return true;
    QRectF area;
    for (const QRectF& rect : pieceRects)
        area |= rect;
    picture = std::make_unique<ScenePicture>(replacedBody, area);
    return true;
}

void ExplodeCommand::dress(BodyItem* piece)
{
    ComplexCommand::dress(piece, replacedBody, picture.get());
}

void ExplodeCommand::redo()
{
    // The replaced items go first, so the first snapshot holds neither them nor the pieces.
    if (replacedBody)
        replacedBody->setActive(false);
    dependents.setActive(false);
    ComplexCommand::redo();
}

void ExplodeCommand::undo()
{
    ComplexCommand::undo();
    if (replacedBody)
        replacedBody->setActive(true);
    dependents.setActive(true);
}
