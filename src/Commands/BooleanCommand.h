#pragma once

#include "Commands/ComplexCommand.h"

#include <QPointer>

class BodyItem;

// Replaces two overlapping bodies by their union, difference or intersection: the pieces take
// the look and values of the first body; joints and forces stay on the two bodies, which go
// inactive while the pieces are active and come back on undo.
class BooleanCommand : public ComplexCommand
{
public:
    // The operation codes; a difference takes the second body away from the first.
    enum Operation { Union = 0, Difference = 1, Intersection = 2 };

    BooleanCommand(BodyItem* item1, BodyItem* item2, int type, QUndoCommand* parent = nullptr);

    void redo() override;
    void undo() override;

private:
    QPointer<BodyItem> firstBody;
    QPointer<BodyItem> secondBody;
};
