#pragma once

#include "Commands/ComplexCommand.h"

#include <QPointer>

class BodyItem;

// Base of union, difference and intersection: two bodies go inactive while the result is
// active, and come back on undo.
class BooleanCommand : public ComplexCommand
{
public:
    void redo() override;
    void undo() override;

protected:
    BooleanCommand(BodyItem* firstBody, BodyItem* secondBody, const QString& text,
                   QUndoCommand* parent);

    QPointer<BodyItem> firstBody;
    QPointer<BodyItem> secondBody;
};
