#include "Tools/PlayPauseAction.h"

#include "Application/Application.h"
#include "Commands/PlayCommand.h"
#include "Physics/PhysicsWorld.h"

#include <QUndoStack>

PlayPauseAction::PlayPauseAction(QObject* parent)
    : Action(QIcon(QStringLiteral(":/icons/play.png")), tr("Play/Pause"), parent)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    connect(world, &PhysicsWorld::started, this, &PlayPauseAction::onWorldStarted);
    connect(world, &PhysicsWorld::stopped, this, &PlayPauseAction::onWorldStopped);
}

void PlayPauseAction::onTriggered()
{
    PhysicsWorld* world = PhysicsWorld::instance();
    if (world->running())
        world->stop();
    else
        Application::instance()->undoStack->push(new PlayCommand());
}

void PlayPauseAction::onWorldStarted()
{
    setIcon(QIcon(QStringLiteral(":/icons/pause.png")));
}

void PlayPauseAction::onWorldStopped()
{
    setIcon(QIcon(QStringLiteral(":/icons/play.png")));
}
