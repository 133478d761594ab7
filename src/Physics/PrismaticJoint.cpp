#include "Physics/PrismaticJoint.h"

#include "Physics/Box2DLimits.h"

#include <QGraphicsLineItem>

namespace {
// An arm reaches a quarter beyond its anchor, so it shows where it holds the body.
QLineF armLine(const QPointF& trackEnd, const QPointF& anchor)
{
    QLineF line(trackEnd, anchor);
    if (line.length() > 0.0)
        line.setLength(line.length() * 1.25);
    return line;
}
} // namespace

PrismaticJoint::PrismaticJoint(BodyItem* pItem1, BodyItem* pItem2, QLineF line1, QLineF line2)
    : JointItem(pItem1, pItem2, &definition)
    , localPoint1(body1()->GetLocalPoint(toVec2(line1.p1())))
    , localPoint2(body2()->GetLocalPoint(toVec2(line2.p1())))
    , track(new QGraphicsLineItem())
{
    QPen trackPen;
    trackPen.setCosmetic(true);
    track->setPen(trackPen);
    pGraphicsItem = track;
    setUpGraphics();
    firstArm = new QGraphicsLineItem(track);
    firstArm->setPen(linePen(Qt::blue, 2 * lineWidth));
    secondArm = new QGraphicsLineItem(track);
    secondArm->setPen(linePen(Qt::black, lineWidth));

    const QLineF trackLine(line1.p1(), line2.p1());
    b2Vec2 axis = toVec2(trackLine.p2() - trackLine.p1());
    axis.Normalize();
    // Initialize fixes the axis and the reference angle; its anchor is replaced right after.
    definition.Initialize(body1(), body2(), toVec2(line1.p2()), axis);
    definition.localAnchorA = body1()->GetLocalPoint(toVec2(line1.p2()));
    definition.localAnchorB = body2()->GetLocalPoint(toVec2(line2.p2()));
    const double travel = trackLine.length() * 0.25;
    definition.lowerTranslation = float(-travel);
    definition.upperTranslation = float(travel);
    definition.enableLimit = true;
    createJoint();
    update();
}

void PrismaticJoint::update()
{
    if (!isActive())
        return;
    const QPointF end1 = trackEnd1();
    const QPointF end2 = trackEnd2();
    track->setLine(QLineF(end1, end2));
    firstArm->setLine(armLine(end1, anchorA()));
    secondArm->setLine(armLine(end2, anchorB()));
    runOnUpdate();
}

QPointF PrismaticJoint::trackEnd1() const
{
    return toPointF(definition.bodyA->GetWorldPoint(localPoint1));
}

QPointF PrismaticJoint::trackEnd2() const
{
    return toPointF(definition.bodyB->GetWorldPoint(localPoint2));
}

void PrismaticJoint::setLimits(double lower, double upper)
{
    if (!prismaticJoint() || !Box2DLimits::isCoordinate(lower) || !Box2DLimits::isCoordinate(upper))
        return;
    prismaticJoint()->SetLimits(float(lower), float(qMax(lower, upper)));
    prismaticJoint()->EnableLimit(true);
}

void PrismaticJoint::setMaxMotorForce(double force)
{
    if (!prismaticJoint() || !Box2DLimits::isMagnitude(force))
        return;
    prismaticJoint()->SetMaxMotorForce(float(force));
    prismaticJoint()->EnableMotor(true);
}

void PrismaticJoint::setMotorSpeed(double speed)
{
    if (!prismaticJoint() || !Box2DLimits::isMagnitude(speed))
        return;
    prismaticJoint()->SetMotorSpeed(float(speed));
    prismaticJoint()->EnableMotor(true);
}
