#pragma once

#include <QUndoCommand>

// Common base of the program's undo commands. Commands are built with new by the tools and
// owned by the undo stack once pushed.
class Command : public QUndoCommand
{
public:
    using QUndoCommand::QUndoCommand;
};
