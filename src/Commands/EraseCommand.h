#pragma once

#include "Commands/ComplexCommand.h"

#include <QHash>
#include <QList>

class BodyItem;
class QPolygonF;

// Rubs an outline out of the scene: every active body that the outline cuts is replaced by
// the pieces that remain of it, which keep its look and values, and its joints by new ones on
// the pieces that hold their anchors. The cut bodies and old joints go inactive while the
// pieces are active, and come back on undo. A body the outline covers whole is left alone.
class EraseCommand : public ComplexCommand
{
public:
    // `eraser` in world coordinates.
    EraseCommand(const QPolygonF& eraser, QUndoCommand* parent = nullptr);

    void redo() override;
    void undo() override;

private:
    // Whether the eraser takes part of the outline away, without covering it whole.
    static bool cutsPart(const QPolygonF& outline, const QPolygonF& eraser);
    // Joints on the cut bodies move to the pieces that hold their anchors; pulley joints,
    // which have no such successor, only go inactive.
    void moveJoints(const QList<BodyItem*>& cutBodies);
    // The piece of a cut body that holds a point, the last one if several do; the body itself
    // if it was not cut or no piece holds the point.
    BodyItem* fragmentAt(BodyItem* body, const QPointF& point) const;

    GuardedItems replacedItems;
    // For each cut body its new pieces, while the command is being built.
    QHash<BodyItem*, QList<BodyItem*>> fragments;
};
