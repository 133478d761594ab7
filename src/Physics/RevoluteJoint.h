#pragma once

#include "Physics/JointItem.h"

#include <QPointF>

class RevoluteJointGraphicsItem;

// Pins two bodies together at a point about which they turn, or one body to the background.
// It has limits and a motor. Angles and limits are degrees; the motor speed stays in radians
// per second. Angle is the opposite of Box2D's joint angle, and the drawing turns with it.
class RevoluteJoint : public JointItem
{
    Q_OBJECT
    Q_CLASSINFO("RevoluteJoint", "Revolute Joint")
    Q_CLASSINFO("Radius", "singleStep=0.05;minimum=0.05;")
    Q_CLASSINFO("LowerLimit", "singleStep=1.0;minimum=-360.0;maximum=0.0;")
    Q_CLASSINFO("UpperLimit", "singleStep=1.0;minimum=0.0;maximum=360.0;")
    Q_PROPERTY(double Radius READ radius WRITE setRadius USER true)
    Q_PROPERTY(bool LimitEnabled READ limitEnabled WRITE setLimitEnabled USER true)
    Q_PROPERTY(double LowerLimit READ lowerLimit WRITE setLowerLimit USER true)
    Q_PROPERTY(double UpperLimit READ upperLimit WRITE setUpperLimit USER true)
    Q_PROPERTY(bool MotorEnabled READ motorEnabled WRITE setMotorEnabled USER true)
    Q_PROPERTY(double MotorSpeed READ motorSpeed WRITE setMotorSpeed USER true)
    Q_PROPERTY(double Angle READ angle WRITE setAngle USER true)
    Q_PROPERTY(double MotorTorque READ motorTorque USER true)

public:
    // point in world coordinates, radius of the drawing in metres.
    RevoluteJoint(BodyItem* pItem1, BodyItem* pItem2, QPointF point, double radius);

    int type() const override { return RevoluteJointType; }
    void update() override;
    QPolygonF snapPoints() const override;

    double radius() const;
    bool limitEnabled() const { return definition.enableLimit; }
    double lowerLimit() const { return radiansToDegrees(definition.lowerAngle); }
    double upperLimit() const { return radiansToDegrees(definition.upperAngle); }
    bool motorEnabled() const { return definition.enableMotor; }
    double motorSpeed() const { return definition.motorSpeed; }
    double angle() const;
    // N*m, for steps of 1/60 s; 0 while inactive.
    double motorTorque() const;

public slots:
    void setRadius(double radius);
    void setLimitEnabled(bool enabled);
    // A lower limit above the upper one raises the upper one with it; Box2D asserts on the
    // pair in the wrong order. setUpperLimit lowers the lower one likewise.
    void setLowerLimit(double lowerLimit);
    void setUpperLimit(double upperLimit);
    void setMotorEnabled(bool enabled);
    void setMotorSpeed(double motorSpeed);
    // Box2D has no setter for the angle: the reference angle moves instead, and no body does.
    void setAngle(double angle);
    // An upper limit below the lower one is taken as equal to it. Does not wake the bodies.
    void setLimits(double lower, double upper);

protected:
    b2Vec2 localAnchorA() const override { return definition.localAnchorA; }
    b2Vec2 localAnchorB() const override { return definition.localAnchorB; }

private:
    b2RevoluteJoint* revoluteJoint() const { return static_cast<b2RevoluteJoint*>(joint()); }
    // Degrees, lower not above upper.
    void writeLimits(double lower, double upper);
    void updateGraphics();

    b2RevoluteJointDef definition;
    RevoluteJointGraphicsItem* jointGraphics;
};
Q_DECLARE_METATYPE(RevoluteJoint*)
