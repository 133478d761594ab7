#include "Commands/RemoveCommand.h"

#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"

#include <QObject>

RemoveCommand::RemoveCommand(const QRectF& rect, QUndoCommand* parent)
    : PhysicsWorldCommand(parent)
{
    setText(QObject::tr("Remove"));
    PhysicsWorld* world = PhysicsWorld::instance();
    GraphicsScene* scene = world->graphicsScene();
    PhysicsItemList items;
    if (rect.width() > 0 && rect.height() > 0) {
        items = PhysicsItemList(scene, rect);
    } else if (PhysicsItem* item = scene->physicsItemAt(rect.topLeft())) {
        items.append(item);
    }
    PhysicsItemList dependents;
    for (PhysicsItem* item : qAsConst(items)) {
        if (BodyItem* body = item->toBodyItem()) {
            for (PhysicsItem* dependent : world->dependentPhysicsItems(body)) {
                if (!dependents.contains(dependent))
                    dependents.append(dependent);
            }
        }
    }
    removedItems = GuardedItems(items + dependents);
}

void RemoveCommand::redo()
{
    PhysicsWorldCommand::redo();
    removedItems.setActive(false);
}

void RemoveCommand::undo()
{
    removedItems.setActive(true);
    PhysicsWorldCommand::undo();
}
