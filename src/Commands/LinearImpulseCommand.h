#pragma once

#include "Commands/PhysicsWorldCommand.h"

#include <QLineF>
#include <QPointer>

class BodyItem;

// Shoots a body: makes it a bullet and applies an impulse (the vector of the line, N·s) at the
// line's start point in world coordinates.
class LinearImpulseCommand : public PhysicsWorldCommand
{
public:
    LinearImpulseCommand(BodyItem* body, const QLineF& impulse, QUndoCommand* parent = nullptr);

    void redo() override;

private:
    QPointer<BodyItem> body;
    QLineF impulse;
};
