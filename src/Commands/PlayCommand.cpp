#include "Commands/PlayCommand.h"

#include "Physics/PhysicsWorld.h"

#include <QObject>

PlayCommand::PlayCommand(QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
{
    setText(QObject::tr("Play"));
}

void PlayCommand::redo()
{
    PhysicsWorldCommand::redo();
    PhysicsWorld::instance()->start();
}

void PlayCommand::undo()
{
    PhysicsWorld::instance()->stop();
    PhysicsWorldCommand::undo();
}
