#include "Physics/JointItem.h"

#include "NemuGeometry/Geometry.h"
#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"

#include <QGraphicsItem>

// Joints stack above all bodies, whose counter starts at 0.
double JointItem::zValueCounter = 100000.0;

JointItem::JointItem(BodyItem* pItem1, BodyItem* pItem2, b2JointDef* definition)
    : pDefinition(definition)
    , pBodyItem1(pItem1)
    , pBodyItem2(pItem2)
    , background(PhysicsWorld::instance()->backgroundBody())
{
    // The handlers reach the definition's bodies only when they run, long after the subclass
    // has filled the definition.
    if (pItem1)
        connect(pItem1, &QObject::destroyed, this,
                [this] { forgetBody(pBodyItem1, pDefinition->bodyA); });
    if (pItem2)
        connect(pItem2, &QObject::destroyed, this,
                [this] { forgetBody(pBodyItem2, pDefinition->bodyB); });
}

JointItem::~JointItem()
{
    destroyJoint();
}

void JointItem::forgetBody(BodyItem*& item, b2Body*& body)
{
    // ~BodyItem has destroyed the b2Body, and Box2D every joint on it. The definition points at
    // the background body from now on, so that answering from it stays safe.
    item = nullptr;
    body = background;
    pJoint = nullptr;
    bodyLost = true;
    pGraphicsItem->setVisible(false);
}

void JointItem::setActive(bool active)
{
    if (active && !pJoint) {
        createJoint();
        update();
    } else if (!active) {
        destroyJoint();
    }
    pGraphicsItem->setVisible(isActive());
}

void JointItem::createJoint()
{
    // Box2D asserts on a joint with one body at both ends, which a script can ask for.
    b2World* world = PhysicsWorld::box2DWorld();
    if (pJoint || bodyLost || !world || pDefinition->bodyA == pDefinition->bodyB)
        return;
    // The world finds the item of a b2Joint through it.
    pDefinition->userData.pointer = reinterpret_cast<uintptr_t>(this);
    pJoint = world->CreateJoint(pDefinition);
}

void JointItem::destroyJoint()
{
    b2World* world = PhysicsWorld::box2DWorld();
    if (pJoint && world)
        world->DestroyJoint(pJoint);
    pJoint = nullptr;
}

void JointItem::rebuildJoint()
{
    if (!pJoint)
        return;
    destroyJoint();
    createJoint();
}

void JointItem::wakeBodies()
{
    // Waking the background body, a static one, does nothing.
    pDefinition->bodyA->SetAwake(true);
    pDefinition->bodyB->SetAwake(true);
}

void JointItem::setUpGraphics()
{
    pGraphicsItem->setFlag(QGraphicsItem::ItemIsSelectable);
    pGraphicsItem->setZValue(++zValueCounter);
    pGraphicsItem->setOpacity(0.5);
}

b2Body* JointItem::body1() const
{
    return pBodyItem1 ? pBodyItem1->body() : background;
}

b2Body* JointItem::body2() const
{
    return pBodyItem2 ? pBodyItem2->body() : background;
}

QPointF JointItem::anchorA() const
{
    return toPointF(pJoint ? pJoint->GetAnchorA()
                           : pDefinition->bodyA->GetWorldPoint(localAnchorA()));
}

QPointF JointItem::anchorB() const
{
    return toPointF(pJoint ? pJoint->GetAnchorB()
                           : pDefinition->bodyB->GetWorldPoint(localAnchorB()));
}

QString JointItem::bodyItem1Name() const
{
    return pBodyItem1 ? pBodyItem1->name() : QString();
}

QString JointItem::bodyItem2Name() const
{
    return pBodyItem2 ? pBodyItem2->name() : QString();
}

QString JointItem::anchor1() const
{
    return Nemu::Geometry::pointToString(anchorA());
}

QString JointItem::anchor2() const
{
    return Nemu::Geometry::pointToString(anchorB());
}

double JointItem::radiansToDegrees(double radians)
{
    return radians * 57.29577791868205;
}

QPen JointItem::linePen(const QColor& color, double width)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

b2Vec2 JointItem::toVec2(const QPointF& point)
{
    return b2Vec2(float(point.x()), float(point.y()));
}

QPointF JointItem::toPointF(const b2Vec2& vector)
{
    return QPointF(vector.x, vector.y);
}
