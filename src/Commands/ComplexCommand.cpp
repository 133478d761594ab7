#include "Commands/ComplexCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"

ComplexCommand::ComplexCommand(const QString& text, QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
{
    setText(text);
}

ComplexCommand::~ComplexCommand()
{
    newItems.removeFromWorld();
}

void ComplexCommand::dress(BodyItem* piece, BodyItem* source, const ScenePicture* picture)
{
    piece->setActive(false);
    piece->setBasicPropertiesFrom(source, picture);
}

void ComplexCommand::record(PhysicsItem* item)
{
    PhysicsWorld::instance()->addPhysicsItem(item);
    properties.append(XPropertyList::read(item));
    item->setActive(false);
    newItems.append(item);
}

void ComplexCommand::redo()
{
    PhysicsWorldCommand::redo();
    // Each list knows its item, so an item deleted meanwhile is skipped with its values.
    for (const XPropertyList& list : qAsConst(properties)) {
        if (auto* item = qobject_cast<PhysicsItem*>(list.object.data())) {
            item->setActive(true);
            XPropertyList::write(item, list);
        }
    }
}

void ComplexCommand::undo()
{
    newItems.setActive(false);
    PhysicsWorldCommand::undo();
}
