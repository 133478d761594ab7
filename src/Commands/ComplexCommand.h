#pragma once

#include "Commands/GuardedItems.h"
#include "Commands/PhysicsWorldCommand.h"
#include "General/XPropertyList.h"

class BodyItem;
class ScenePicture;

// Base of the commands that make several items in one gesture (chains, ropes, texts, pieces
// of a cut). It owns the new items: they are kept with their values as built, activated by
// redo, deactivated by undo and removed from the world when the command dies.
class ComplexCommand : public PhysicsWorldCommand
{
public:
    ~ComplexCommand() override;

    void redo() override;
    void undo() override;

    PhysicsItemList items() const { return newItems.items(); }

protected:
    ComplexCommand(const QString& text, QUndoCommand* parent);

    // Dresses a new body as a piece of `source`: inactive, with its look and values; a
    // textured source's picture is cut from `picture` where one was rendered for all pieces.
    static void dress(BodyItem* piece, BodyItem* source, const ScenePicture* picture = nullptr);
    // Puts a new item into the world and records it with its values as they are now; it
    // stays inactive until the first redo.
    void record(PhysicsItem* item);

private:
    GuardedItems newItems;
    QList<XPropertyList> properties;
};
