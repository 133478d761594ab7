#pragma once

#include "Commands/PhysicsWorldCommand.h"
#include "General/XPropertyList.h"
#include "Physics/JointItem.h"

#include <QPointer>

// Base of the commands that add one joint. The joint's values are read while its b2Joint
// still exists, then the joint is switched off (which destroys the b2Joint) and added to the
// world. Redo activates it before writing the values, since they reach into the b2Joint. The
// command owns the joint: its destruction removes the joint from the world.
class JointCommand : public PhysicsWorldCommand
{
public:
    ~JointCommand() override;

    void redo() override;
    void undo() override;

    JointItem* item() const { return joint; }

protected:
    JointCommand(JointItem* joint, const QString& text, QUndoCommand* parent);

private:
    QPointer<JointItem> joint;
    XPropertyList properties;
};
