#pragma once

#include "Tools/Action.h"

// Play and pause in one action: pausing stops the world, playing pushes a "Play" command whose
// undo rewinds the scene. Its icon follows the world, also when a script starts or stops it.
class PlayPauseAction : public Action
{
    Q_OBJECT

public:
    explicit PlayPauseAction(QObject* parent);

protected slots:
    void onTriggered() override;

private slots:
    void onWorldStarted();
    void onWorldStopped();
};
