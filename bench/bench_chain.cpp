// The cost of the program around Box2D: a chain of 200 links hanging from one end, joined by
// revolute joints and, beside each joint, a spring between the links' centres, stepped 600
// times through PhysicsWorld::step() and again as the same scene in bare Box2D, built in the
// same run. The ratio is what the items, their graphics and the springs' bookkeeping add. The
// scene has a view, as in the program: without one, Qt gathers every moved item's area for
// the scene's change signal.
#include "Application/Settings.h"
#include "BenchmarkApplication.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "View/GraphicsView.h"

#include <box2d/box2d.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

const int linkCount = 200;
const int stepCount = 600;
// Metres: the links lie along y = 10 from x = 0, each 0.4 long and 0.1 high.
const double linkLength = 0.4;
const double linkHeight = 0.1;
const double top = 10.0;
// N/m and N*s/m: soft enough to stay stable at 60 steps a second with links of 0.04 kg.
const double springK = 10.0;
const double springDamping = 0.1;

QPointF centre(int link)
{
    return QPointF((link + 0.5) * linkLength, top);
}

// The joint between a link and the one before it, or the background for the first.
QPointF hinge(int link)
{
    return QPointF(link * linkLength, top);
}

b2Vec2 toVec2(const QPointF& point)
{
    return b2Vec2(float(point.x()), float(point.y()));
}

template<typename Work> double milliseconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double programChain()
{
    PhysicsWorld* world = PhysicsWorld::instance();
    GraphicsView view;
    const double radius = Settings::instance()->revoluteJointRadius;
    QList<RectangleItem*> links;
    for (int i = 0; i < linkCount; ++i) {
        RectangleItem* link = world->createRectangle(centre(i).x(), top, 0, linkLength, linkHeight);
        world->addPhysicsItem(new RevoluteJoint(link, links.value(i - 1), hinge(i), radius));
        if (i > 0)
            world->addPhysicsItem(new SpringForce(links.last(), link, centre(i - 1), centre(i),
                                                  springK, springDamping));
        links.append(link);
    }
    const double time = milliseconds([world] {
        for (int i = 0; i < stepCount; ++i)
            world->step();
    });
    PhysicsWorld::destroy();
    return time;
}

// The bare equivalent: the same bodies, fixtures, joints and spring law, with the body
// defaults the program takes from its settings.
double box2DChain()
{
    const Settings* settings = Settings::instance();
    b2World world(b2Vec2(0.0f, -10.0f));
    const b2BodyDef groundDefinition;
    b2Body* ground = world.CreateBody(&groundDefinition);
    std::vector<b2Body*> links;
    for (int i = 0; i < linkCount; ++i) {
        b2BodyDef bodyDefinition;
        bodyDefinition.type = b2_dynamicBody;
        bodyDefinition.position = toVec2(centre(i));
        bodyDefinition.allowSleep = settings->allowSleepDefault;
        bodyDefinition.bullet = settings->isBulletDefault;
        bodyDefinition.linearDamping = float(settings->linearDampingDefault);
        bodyDefinition.angularDamping = float(settings->angularDampingDefault);
        b2Body* link = world.CreateBody(&bodyDefinition);
        b2PolygonShape shape;
        shape.SetAsBox(float(linkLength / 2), float(linkHeight / 2));
        b2FixtureDef fixtureDefinition;
        fixtureDefinition.shape = &shape;
        fixtureDefinition.density = 1.0f;
        fixtureDefinition.friction = float(settings->frictionDefault);
        fixtureDefinition.restitution = float(settings->restitutionDefault);
        link->CreateFixture(&fixtureDefinition);
        b2RevoluteJointDef jointDefinition;
        jointDefinition.Initialize(link, i > 0 ? links.back() : ground, toVec2(hinge(i)));
        jointDefinition.maxMotorTorque = 50000.0f;
        world.CreateJoint(&jointDefinition);
        links.push_back(link);
    }
    const float restLength = float(linkLength);
    return milliseconds([&] {
        for (int step = 0; step < stepCount; ++step) {
            world.Step(1.0f / 60.0f, 8, 8);
            // Springs between the centres, each force at the other body's anchor, as the
            // program's springs apply theirs.
            for (int i = 1; i < linkCount; ++i) {
                b2Body* a = links[i - 1];
                b2Body* b = links[i];
                const b2Vec2 d = b->GetPosition() - a->GetPosition();
                const float distance = d.Length();
                const b2Vec2 n = (1.0f / distance) * d;
                const b2Vec2 v = b->GetLinearVelocity() - a->GetLinearVelocity();
                const b2Vec2 f
                    = float(-springK * (distance - restLength) - springDamping * b2Dot(v, n)) * n;
                b->ApplyForce(f, a->GetPosition(), true);
                a->ApplyForce(-f, b->GetPosition(), true);
            }
        }
    });
}

} // namespace

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    // The fastest of five runs of each: the machine's own noise only ever adds time.
    double program = programChain();
    double box2D = box2DChain();
    for (int run = 1; run < 5; ++run) {
        program = std::min(program, programChain());
        box2D = std::min(box2D, box2DChain());
    }
    std::printf("chain N=%d program_ms=%.1f box2d_ms=%.1f ratio=%.2f\n", linkCount, program, box2D,
                program / box2D);
    return 0;
}
