#pragma once

#include "Commands/ComplexCommand.h"

#include <QList>
#include <QPointer>
#include <QRectF>
#include <memory>

class BodyItem;
class QPolygonF;
class ScenePicture;

// Base of the commands that replace one body by pieces that cover its shape and carry on
// with its motion: the body and everything that hangs on it go inactive while the pieces are
// active, and come back on undo. The pieces are made in the constructor. An explosion into
// more than maximumPieces pieces is refused before anything is made, since the count grows
// with the square of the body's size over the piece size.
class ExplodeCommand : public ComplexCommand
{
public:
    // The methods of the "ExplodeMethod" setting.
    enum Method { Triangulate = 1, Squarify = 2, Circlify = 3 };
    static const int maximumPieces = 5000;

    ~ExplodeCommand() override;

    // The command of `method` on `body`, with `size` in metres for the grid methods. Null for
    // an unknown method, and null with a warning on the console for too many pieces.
    static ExplodeCommand* create(BodyItem* body, int method, double size,
                                  QUndoCommand* parent = nullptr);

    // The squares of side `size`, on a grid anchored at the polygon's bounding rectangle,
    // that have at least one corner inside the polygon.
    static QList<QRectF> gridRects(const QPolygonF& polygon, double size, Qt::FillRule fillRule);

    // The number of pieces the constructor would have made, when it refused to make them.
    int refusedPieceCount() const { return refusedCount; }

    void redo() override;
    void undo() override;

protected:
    ExplodeCommand(BodyItem* replacedBody, const QString& text, QUndoCommand* parent);

    // Whether the pieces, whose bounding rectangles these are, may be made. If so, and the
    // body is textured, renders the picture of the scene they take their brushes from.
    bool prepare(const QList<QRectF>& pieceRects);
    // Dresses a new piece as the replaced body: inactive, with its look and its values.
    void dress(BodyItem* piece);

    QPointer<BodyItem> replacedBody;

private:
    GuardedItems dependents;
    std::unique_ptr<ScenePicture> picture;
    int refusedCount = 0;
};
