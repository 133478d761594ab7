#pragma once

#include "Commands/PhysicsWorldCommand.h"
#include "General/XPropertyList.h"
#include "Physics/BodyItem.h"

#include <QBrush>
#include <QPointer>

// Base of the commands that add one body. The constructor puts the new body into the world,
// inactive, and keeps its values as built; redo writes them back and activates it, undo
// deactivates it. The command owns the body: its destruction removes the body from the world.
class BodyCommand : public PhysicsWorldCommand
{
public:
    ~BodyCommand() override;

    void redo() override;
    void undo() override;

    BodyItem* item() const { return body; }

protected:
    BodyCommand(BodyItem* body, const QBrush& brush, const QString& text, QUndoCommand* parent);

private:
    QPointer<BodyItem> body;
    XPropertyList properties;
};
