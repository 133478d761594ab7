#include "Commands/ExplodeCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"

ExplodeCommand::ExplodeCommand(BodyItem* replacedBody, const QString& text, QUndoCommand* parent)
    : ComplexCommand(text, parent)
    , replacedBody(replacedBody)
    , dependents(PhysicsWorld::instance()->dependentPhysicsItems(replacedBody))
{
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
