#include "Files/fuzz/SceneInputCheck.h"

#include "Files/XMLReader.h"
#include "Files/XMLWriter.h"
#include "Physics/BodyItem.h"
#include "Physics/Box2DLimits.h"
#include "Physics/JointItem.h"
#include "Physics/PhysicsWorld.h"

#include <QBuffer>

namespace {
void read(const QByteArray& document)
{
    QBuffer buffer;
    buffer.setData(document);
    buffer.open(QIODevice::ReadOnly);
    XMLReader(&buffer, nullptr).read();
}

QString checkWorld(PhysicsWorld* world)
{
    for (PhysicsItem* item : world->items()) {
        if (!item->isActive())
            return QStringLiteral("%1 is inactive").arg(item->name());
        if (world->physicsItemFromName(item->name()) != item)
            return QStringLiteral("%1 is not found by its name").arg(item->name());
    }
    for (JointItem* joint : world->jointItems()) {
        if (!world->contains(joint->bodyItem1())
            || (joint->bodyItem2() && !world->contains(joint->bodyItem2())))
            return QStringLiteral("%1 hangs on a body outside the world").arg(joint->name());
    }
    if (world->physicsItemInstanceCounter() < 0)
        return QStringLiteral("the instance counter is negative");
    return QString();
}

// Whether every body stands where a document may put it: one that the steps carried beyond
// the world's coordinates is, rightly, not made again on reading.
bool bodiesWithinLimits(PhysicsWorld* world)
{
    for (BodyItem* body : world->bodyItems()) {
        if (!Box2DLimits::isPoint(QPointF(body->positionX(), body->positionY())))
            return false;
    }
    return true;
}
} // namespace

QString checkSceneInput(const QByteArray& document)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    // Each input starts from the same world: gravity outlives a new scene.
    static const QPointF gravity(world->gravityX(), world->gravityY());
    world->clear();
    world->setGravityX(gravity.x());
    world->setGravityY(gravity.y());
    read(document);
    for (int i = 0; i < 3; ++i)
        world->step();
    QString fault = checkWorld(world);
    const int items = bodiesWithinLimits(world) ? world->items().size() : -1;
    QString written;
    XMLWriter(&written).writeScene(world, nullptr);
    world->clear();
    read(written.toUtf8());
    if (fault.isEmpty() && items >= 0 && world->items().size() != items)
        fault = QStringLiteral("%1 items read back as %2").arg(items).arg(world->items().size());
    world->clear();
    return fault;
}
