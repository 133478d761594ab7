#pragma once

#include <box2d/box2d.h>

// One point of a touching contact as Box2D reported it during a step.
struct ContactPoint
{
    b2Fixture* fixtureA;
    b2Fixture* fixtureB;
    b2Vec2 normal;
    b2Vec2 position;
    b2PointState state;
};

// Writes down the contact points that Box2D reports from inside b2World::Step, when the world
// is locked and no script may run. The world empties the buffer before each step and turns
// the new points into OnContact calls afterwards. The buffer is part of the object, so a step
// allocates nothing for contacts; points beyond its size are dropped.
class ContactListener : public b2ContactListener
{
public:
    static constexpr int maximumContactPoints = 2048;

    void PreSolve(b2Contact* contact, const b2Manifold* oldManifold) override;

    int contactCount = 0;
    ContactPoint contacts[maximumContactPoints];
};
