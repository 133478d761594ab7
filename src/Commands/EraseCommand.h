#pragma once

#include "Commands/ComplexCommand.h"

#include <QHash>

class BodyItem;

// Base of the commands that cut bodies: the cut bodies and joints go inactive while their
// pieces are active, and come back on undo.
class EraseCommand : public ComplexCommand
{
public:
    void redo() override;
    void undo() override;

protected:
    EraseCommand(const QString& text, QUndoCommand* parent);

    GuardedItems replacedItems;
    // For each cut body its new pieces, while the command is being built.
    QHash<BodyItem*, QList<BodyItem*>> fragments;
};
