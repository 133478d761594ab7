#include "Physics/SpringForce.h"

#include "NemuGeometry/Geometry.h"
#include "Physics/BodyItem.h"
#include "Physics/Box2DLimits.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"
#include "View/SpringGraphicsItem.h"

#include <QLineF>
#include <QPen>

namespace {
b2Vec2 toVector(const QPointF& point)
{
    return b2Vec2(float(point.x()), float(point.y()));
}

QPointF toPoint(const b2Vec2& vector)
{
    return QPointF(vector.x, vector.y);
}

// The anchor of a body that is missing is the origin: such a spring never acts.
b2Vec2 localPoint(const BodyItem* body, const QPointF& point)
{
    return body ? body->body()->GetLocalPoint(toVector(point)) : b2Vec2_zero;
}

} // namespace

SpringForce::SpringForce(BodyItem* pItem1, BodyItem* pItem2, QPointF p1, QPointF p2, double k,
                         double damping)
    : ForceItem(QList<BodyItem*>() << pItem1 << pItem2)
    , localAnchor1(localPoint(pItem1, p1))
    , localAnchor2(localPoint(pItem2, p2))
    , stiffness(k)
    , dampingValue(damping)
    , restLength(QLineF(p1, p2).length())
{
    springItem = new SpringGraphicsItem(QLineF(p1, p2));
    pGraphicsItem = springItem;
    springItem->setFlag(QGraphicsItem::ItemIsSelectable);
    const double z1 = pItem1 ? pItem1->zValue() : 0.0;
    const double z2 = pItem2 ? pItem2->zValue() : 0.0;
    springItem->setZValue(qMax(z1, z2) + 1.0);
}

void SpringForce::update()
{
    BodyItem* item1 = bodyItem(0);
    BodyItem* item2 = bodyItem(1);
    if (!isActive() || !item1 || !item2)
        return;
    // In float, as Box2D keeps its state. The anchors are measured from each body's origin,
    // which is not its centre of mass in general.
    b2Body* a = item1->body();
    b2Body* b = item2->body();
    const b2Vec2 rA = b2Mul(a->GetTransform().q, localAnchor1);
    const b2Vec2 rB = b2Mul(b->GetTransform().q, localAnchor2);
    const b2Vec2 pA = a->GetPosition() + rA;
    const b2Vec2 pB = b->GetPosition() + rB;
    const b2Vec2 d = pB - pA;
    const b2Vec2 v = b->GetLinearVelocity() + b2Cross(b->GetAngularVelocity(), rB)
        - a->GetLinearVelocity() - b2Cross(a->GetAngularVelocity(), rA);
    float distance = d.Length();
    // Anchors in one place give a direction of length 0, so they do not push apart.
    b2Vec2 n = d;
    if (distance < b2_epsilon)
        distance = 0.0f;
    else
        n.Set(d.x / distance, d.y / distance);
    const float magnitude
        = float(-stiffness * (distance - restLength) - dampingValue * b2Dot(v, n));
    const b2Vec2 f = magnitude * n; // the force on the second body

    // A force that is not finite, from values or anchors beyond single precision, would take
    // Box2D's solver to NaN, on which it asserts; the spring then leaves everything as it was.
    if (f.IsValid()) {
        // Each body takes its force at the other body's anchor. ApplyForce wakes a dynamic
        // body also for a zero force, so bodies held by a spring never fall asleep, and it
        // leaves static and kinematic bodies alone.
        b->ApplyForce(f, pA, true);
        a->ApplyForce(-f, pB, true);
        redraw(toPoint(pA), toPoint(pB));
    }
    runOnUpdate();
}

void SpringForce::redraw(const QPointF& p1, const QPointF& p2)
{
    // Laying the coil out is most of a spring's cost at each step: not while it moves by less
    // than a pixel.
    if (springItem->scene()) {
        const double pixel = PhysicsWorld::instance()->graphicsScene()->pixelSize();
        const QLineF drawn = springItem->line();
        const QPointF d1 = drawn.p1() - p1;
        const QPointF d2 = drawn.p2() - p2;
        if (QPointF::dotProduct(d1, d1) <= pixel * pixel
            && QPointF::dotProduct(d2, d2) <= pixel * pixel)
            return;
    }
    springItem->setLine(QLineF(p1, p2));
}

QPolygonF SpringForce::snapPoints() const
{
    QPolygonF points;
    if (const BodyItem* item1 = bodyItem(0))
        points << toPoint(item1->body()->GetWorldPoint(localAnchor1));
    if (const BodyItem* item2 = bodyItem(1))
        points << toPoint(item2->body()->GetWorldPoint(localAnchor2));
    return points;
}

QString SpringForce::bodyItem1Name() const
{
    const BodyItem* item1 = bodyItem(0);
    return item1 ? item1->name() : QString();
}

QString SpringForce::bodyItem2Name() const
{
    const BodyItem* item2 = bodyItem(1);
    return item2 ? item2->name() : QString();
}

QString SpringForce::anchor1() const
{
    return anchorText(bodyItem(0), localAnchor1);
}

QString SpringForce::anchor2() const
{
    return anchorText(bodyItem(1), localAnchor2);
}

QColor SpringForce::color() const
{
    return springItem->pen().color();
}

void SpringForce::setK(double k)
{
    if (Box2DLimits::isMagnitude(k))
        stiffness = k;
}

void SpringForce::setDamping(double damping)
{
    if (Box2DLimits::isMagnitude(damping))
        dampingValue = damping;
}

void SpringForce::setDesiredDistance(double desiredDistance)
{
    if (!Box2DLimits::isLength(desiredDistance))
        return;
    restLength = desiredDistance;
    springItem->setRestLength(desiredDistance);
    update();
}

void SpringForce::setColor(QColor color)
{
    QPen pen = springItem->pen();
    pen.setColor(color);
    springItem->setPen(pen);
}

QString SpringForce::anchorText(const BodyItem* body, const b2Vec2& localAnchor)
{
    if (!body)
        return QString();
    const b2Vec2 anchor = body->body()->GetWorldPoint(localAnchor);
    return Nemu::Geometry::pointToString(QPointF(anchor.x, anchor.y));
}
