#include "Commands/EraseCommand.h"

EraseCommand::EraseCommand(const QString& text, QUndoCommand* parent)
    : ComplexCommand(text, parent)
{
}

void EraseCommand::redo()
{
    replacedItems.setActive(false);
    ComplexCommand::redo();
}

void EraseCommand::undo()
{
    ComplexCommand::undo();
    replacedItems.setActive(true);
}
