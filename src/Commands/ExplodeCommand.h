#pragma once

#include "Commands/ComplexCommand.h"

#include <QPointer>

class BodyItem;

// Base of the commands that replace one body by pieces: the body and everything that hangs
// on it go inactive while the pieces are active, and come back on undo.
class ExplodeCommand : public ComplexCommand
{
public:
    void redo() override;
    void undo() override;

protected:
    ExplodeCommand(BodyItem* replacedBody, const QString& text, QUndoCommand* parent);

    QPointer<BodyItem> replacedBody;

private:
    GuardedItems dependents;
};
