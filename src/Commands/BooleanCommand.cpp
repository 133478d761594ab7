#include "Commands/BooleanCommand.h"

#include "Physics/BodyItem.h"

BooleanCommand::BooleanCommand(BodyItem* firstBody, BodyItem* secondBody, const QString& text,
                               QUndoCommand* parent)
    : ComplexCommand(text, parent)
    , firstBody(firstBody)
    , secondBody(secondBody)
{
}

void BooleanCommand::redo()
{
    for (BodyItem* body : {firstBody.data(), secondBody.data()}) {
        if (body)
            body->setActive(false);
    }
    ComplexCommand::redo();
}

void BooleanCommand::undo()
{
    ComplexCommand::undo();
    for (BodyItem* body : {firstBody.data(), secondBody.data()}) {
        if (body)
            body->setActive(true);
    }
}
