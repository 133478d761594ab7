// Times taking and restoring the snapshot that every undo entry holds, for scenes of 100,
// 1,000 and 5,000 bodies, and reports the snapshot's size.
#include "BenchmarkApplication.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QBuffer>
#include <QDataStream>
#include <QElapsedTimer>
#include <cstdio>

namespace {
// Bytes of the snapshot's values as QDataStream writes them: a fair measure of its memory.
qint64 snapshotBytes(const PhysicsWorldState& state)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QDataStream stream(&buffer);
    QList<XPropertyList> lists = state.itemProperties;
    lists.prepend(state.worldProperties);
    for (const XPropertyList& list : lists) {
        for (const XProperty& property : list.properties)
            stream << property.name << property.value;
    }
    return buffer.size();
}
} // namespace

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    for (int count : {100, 1000, 5000}) {
        PhysicsWorld* world = PhysicsWorld::instance();
        for (int i = 0; i < count; ++i)
            world->createRectangle((i % 100) * 0.5, (i / 100) * 0.5, 0, 0.4, 0.4);
        PhysicsWorldState state;
        QElapsedTimer timer;
        timer.start();
        world->getState(state);
        const double get = timer.nsecsElapsed() / 1e6;
        timer.restart();
        world->setState(state);
        const double set = timer.nsecsElapsed() / 1e6;
        std::printf("snapshot N=%d get_ms=%.2f set_ms=%.2f bytes=%lld\n", count, get, set,
                    static_cast<long long>(snapshotBytes(state)));
        std::fflush(stdout);
        PhysicsWorld::destroy();
    }
    return 0;
}
