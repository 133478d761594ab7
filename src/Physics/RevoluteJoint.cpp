#include "Physics/RevoluteJoint.h"

#include "Physics/BodyItem.h"
#include "Physics/Box2DLimits.h"
#include "View/RevoluteJointGraphicsItem.h"

namespace {
// N*m: the motor's strength, the same for every revolute joint.
const float maxMotorTorque = 50000.0f;
// Per second: the step rate for which the motor torque is told.
const float torqueStepRate = 60.0f;
} // namespace

RevoluteJoint::RevoluteJoint(BodyItem* pItem1, BodyItem* pItem2, QPointF point, double radius)
    : JointItem(pItem1, pItem2, &definition)
    , jointGraphics(new RevoluteJointGraphicsItem(radius))
{
    jointGraphics->setPos(point);
    pGraphicsItem = jointGraphics;
    setUpGraphics();
    definition.Initialize(body1(), body2(), toVec2(point));
    definition.maxMotorTorque = maxMotorTorque;
    createJoint();
}

void RevoluteJoint::update()
{
    if (!isActive())
        return;
    updateGraphics();
    runOnUpdate();
}

void RevoluteJoint::updateGraphics()
{
    jointGraphics->setPos(anchorA());
    jointGraphics->setRotation(angle());
}

QPolygonF RevoluteJoint::snapPoints() const
{
    return QPolygonF() << QPointF(0, 0);
}

double RevoluteJoint::radius() const
{
    return jointGraphics->radius();
}

double RevoluteJoint::angle() const
{
    // Box2D's joint angle, worked out from the definition while there is no joint.
    const double jointAngle = revoluteJoint()
        ? revoluteJoint()->GetJointAngle()
        : definition.bodyB->GetAngle() - definition.bodyA->GetAngle() - definition.referenceAngle;
    return -radiansToDegrees(jointAngle);
}

double RevoluteJoint::motorTorque() const
{
    return revoluteJoint() ? revoluteJoint()->GetMotorTorque(torqueStepRate) : 0.0;
}

void RevoluteJoint::setRadius(double radius)
{
    if (radius == this->radius() || !Box2DLimits::isSize(radius))
        return;
    jointGraphics->setRadius(radius);
}

void RevoluteJoint::setLimitEnabled(bool enabled)
{
    if (enabled == definition.enableLimit)
        return;
    definition.enableLimit = enabled;
    if (revoluteJoint())
        revoluteJoint()->EnableLimit(enabled);
    wakeBodies();
}

void RevoluteJoint::setLowerLimit(double lowerLimit)
{
    if (lowerLimit == this->lowerLimit() || !Box2DLimits::isMagnitude(lowerLimit))
        return;
    writeLimits(lowerLimit, qMax(lowerLimit, upperLimit()));
    wakeBodies();
}

void RevoluteJoint::setUpperLimit(double upperLimit)
{
    if (upperLimit == this->upperLimit() || !Box2DLimits::isMagnitude(upperLimit))
        return;
    writeLimits(qMin(lowerLimit(), upperLimit), upperLimit);
    wakeBodies();
}

void RevoluteJoint::setLimits(double lower, double upper)
{
    if (!Box2DLimits::isMagnitude(lower) || !Box2DLimits::isMagnitude(upper))
        return;
    writeLimits(lower, qMax(lower, upper));
}

void RevoluteJoint::writeLimits(double lower, double upper)
{
    definition.lowerAngle = float(BodyItem::degreesToRadians(lower));
    definition.upperAngle = float(BodyItem::degreesToRadians(upper));
    if (revoluteJoint())
        revoluteJoint()->SetLimits(definition.lowerAngle, definition.upperAngle);
}

void RevoluteJoint::setMotorEnabled(bool enabled)
{
    if (enabled == definition.enableMotor)
        return;
    definition.enableMotor = enabled;
    if (revoluteJoint())
        revoluteJoint()->EnableMotor(enabled);
    // The ring round the disc shows the motor state.
    jointGraphics->setBrush(enabled ? Qt::red : Qt::black);
    wakeBodies();
}

void RevoluteJoint::setMotorSpeed(double motorSpeed)
{
    if (motorSpeed == this->motorSpeed() || !Box2DLimits::isMagnitude(motorSpeed))
        return;
    definition.motorSpeed = float(motorSpeed);
    if (revoluteJoint())
        revoluteJoint()->SetMotorSpeed(definition.motorSpeed);
    wakeBodies();
}

void RevoluteJoint::setAngle(double angle)
{
    if (angle == this->angle() || !Box2DLimits::isMagnitude(angle))
        return;
    definition.referenceAngle = float(definition.bodyB->GetAngle() - definition.bodyA->GetAngle()
                                      + BodyItem::degreesToRadians(angle));
    rebuildJoint();
    updateGraphics();
}
