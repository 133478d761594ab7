// Times taking and restoring the snapshot that every undo entry holds, for scenes of 100,
// 1,000 and 5,000 bodies: when every body is new to snapshots, after a step has moved every
// body, as after the world has played, and when none has changed, as when one more body is
// drawn. Then the memory that 100 snapshots of a 5,000-body scene at rest hold, taken as 100
// drawn bodies would take them.
#include "BenchmarkApplication.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QElapsedTimer>
#include <cstdio>
#include <malloc.h>

namespace {
void fill(PhysicsWorld* world, int count)
{
    for (int i = 0; i < count; ++i)
        world->createRectangle((i % 100) * 0.5, (i / 100) * 0.5, 0, 0.4, 0.4);
}

// Milliseconds to take a snapshot and to write it back.
void timeSnapshot(PhysicsWorld* world, double& get, double& set)
{
    PhysicsWorldState state;
    QElapsedTimer timer;
    timer.start();
    world->getState(state);
    get = timer.nsecsElapsed() / 1e6;
    timer.restart();
    world->setState(state);
    set = timer.nsecsElapsed() / 1e6;
}

double heapMegabytes()
{
    return mallinfo2().uordblks / 1e6;
}
} // namespace

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    for (int count : {100, 1000, 5000}) {
        PhysicsWorld* world = PhysicsWorld::instance();
        fill(world, count);
        double get = 0.0;
        double set = 0.0;
        timeSnapshot(world, get, set);
        std::printf("snapshot N=%d new: get_ms=%.2f set_ms=%.2f", count, get, set);
        world->step();
        timeSnapshot(world, get, set);
        std::printf("  after a step: get_ms=%.2f set_ms=%.2f", get, set);
        timeSnapshot(world, get, set);
        std::printf("  unchanged: get_ms=%.2f set_ms=%.2f\n", get, set);
        std::fflush(stdout);
        PhysicsWorld::destroy();
    }

    PhysicsWorld* world = PhysicsWorld::instance();
    fill(world, 5000);
    const int snapshotCount = 100;
    QVector<PhysicsWorldState> states(snapshotCount);
    const double before = heapMegabytes();
    for (PhysicsWorldState& state : states) {
        world->createRectangle(-5.0, 0.0, 0, 0.4, 0.4);
        world->getState(state);
        world->setState(state);
    }
    std::printf("snapshots=%d N=5000 at rest: MB=%.1f\n", snapshotCount, heapMegabytes() - before);
    states.clear();
    PhysicsWorld::destroy();
    return 0;
}
