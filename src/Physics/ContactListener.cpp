#include "Physics/ContactListener.h"

void ContactListener::PreSolve(b2Contact* contact, const b2Manifold* oldManifold)
{
    const b2Manifold* manifold = contact->GetManifold();
    if (manifold->pointCount == 0)
        return;
    b2Fixture* fixtureA = contact->GetFixtureA();
    b2Fixture* fixtureB = contact->GetFixtureB();

    b2PointState oldStates[b2_maxManifoldPoints];
    b2PointState newStates[b2_maxManifoldPoints];
    b2GetPointStates(oldStates, newStates, oldManifold, manifold);

    b2WorldManifold worldManifold;
    worldManifold.Initialize(manifold, fixtureA->GetBody()->GetTransform(),
                             fixtureA->GetShape()->m_radius, fixtureB->GetBody()->GetTransform(),
                             fixtureB->GetShape()->m_radius);

    for (int i = 0; i < manifold->pointCount && contactCount < maximumContactPoints; ++i) {
        ContactPoint& point = contacts[contactCount++];
        point.fixtureA = fixtureA;
        point.fixtureB = fixtureB;
        point.normal = worldManifold.normal;
        point.position = worldManifold.points[i];
        point.state = newStates[i];
    }
}
