// Times the world's step against bare Box2D on the same scene: a pile of N boxes in the
// ground's open box, stepped 600 times. Prints one line per size.
#include "BenchmarkApplication.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "View/GraphicsView.h"

#include <QElapsedTimer>
#include <box2d/box2d.h>
#include <cstdio>

namespace {
const int steps = 600;
const float boxSize = 0.3f;
const int columns = 50;

b2Vec2 boxPosition(int i)
{
    return b2Vec2(-9.5f + (i % columns) * 0.38f + 0.19f, 0.2f + (i / columns) * 0.38f);
}

double programMilliseconds(int count)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    // As in the program, a view watches the scene; painting is timed by bench_view.
    GraphicsView view;
    world->createGround();
    for (int i = 0; i < count; ++i) {
        const b2Vec2 p = boxPosition(i);
        world->createRectangle(p.x, p.y, 0, boxSize, boxSize);
    }
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < steps; ++i)
        world->step();
    const double elapsed = timer.nsecsElapsed() / 1e6;
    view.setScene(nullptr);
    PhysicsWorld::destroy();
    return elapsed;
}

void addBox(b2World& world, b2BodyType type, b2Vec2 position, float halfWidth, float halfHeight)
{
    b2BodyDef definition;
    definition.type = type;
    definition.position = position;
    definition.angularDamping = 0.01f;
    b2Body* body = world.CreateBody(&definition);
    b2PolygonShape shape;
    shape.SetAsBox(halfWidth, halfHeight);
    b2FixtureDef fixture;
    fixture.shape = &shape;
    fixture.density = 1.0f;
    fixture.friction = 0.3f;
    fixture.restitution = 0.4f;
    body->CreateFixture(&fixture);
}

double box2DMilliseconds(int count)
{
    b2World world(b2Vec2(0.0f, -10.0f));
    const b2BodyDef background; // the program's world has one as well
    world.CreateBody(&background);
    addBox(world, b2_staticBody, b2Vec2(0.0f, -0.5f), 11.0f, 0.5f);
    addBox(world, b2_staticBody, b2Vec2(-10.5f, 8.0f), 0.5f, 8.0f);
    addBox(world, b2_staticBody, b2Vec2(10.5f, 8.0f), 0.5f, 8.0f);
    for (int i = 0; i < count; ++i)
        addBox(world, b2_dynamicBody, boxPosition(i), boxSize / 2, boxSize / 2);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < steps; ++i) {
        world.Step(1.0f / 60.0f, 8, 8);
        world.ClearForces();
    }
    return timer.nsecsElapsed() / 1e6;
}
} // namespace

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    // Sizes may be given on the command line, for profiling one of them.
    QList<int> counts;
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        counts.append(argument.toInt());
    if (counts.isEmpty())
        counts = {500, 1000, 2000};
    for (int count : qAsConst(counts)) {
        const double program = programMilliseconds(count);
        const double box2d = box2DMilliseconds(count);
        std::printf("step N=%d program_ms=%.1f box2d_ms=%.1f ratio=%.3f\n", count, program, box2d,
                    program / box2d);
        std::fflush(stdout);
    }
    return 0;
}
