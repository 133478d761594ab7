#pragma once

#include "Commands/PhysicsWorldCommand.h"
#include "General/XPropertyList.h"
// Complete, for the guarded pointer.
#include "Physics/SpringForce.h"

#include <QColor>
#include <QPointF>
#include <QPointer>

// Adds a spring between a point on each of two bodies, both required. Like a body, the spring
// is put into the world inactive with its values as built; redo writes them back and then
// activates it, undo deactivates it. The command owns the spring: its destruction removes the
// spring from the world. k in N/m, damping in N·s/m, points in world coordinates.
class SpringForceCommand : public PhysicsWorldCommand
{
public:
    SpringForceCommand(BodyItem* item1, BodyItem* item2, const QPointF& p1, const QPointF& p2,
                       double k, double damping, const QColor& color,
                       QUndoCommand* parent = nullptr);
    ~SpringForceCommand() override;

    void redo() override;
    void undo() override;

    SpringForce* item() const { return force; }

private:
    // Guarded: a script may delete the spring while the command waits on the stack.
    QPointer<SpringForce> force;
    XPropertyList properties;
};
