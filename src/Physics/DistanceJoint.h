#pragma once

#include "Physics/JointItem.h"

#include <QColor>
#include <QLineF>

class QGraphicsLineItem;

// Holds two anchor points at a distance: a rigid rod for a frequency of 0, a spring of that
// frequency in hertz otherwise. It is drawn as a line between the anchors. The frequency and
// the damping ratio are the item's own, since Box2D 2.4 keeps only the stiffness that they
// give for the masses of one moment.
class DistanceJoint : public JointItem
{
    Q_OBJECT
    Q_CLASSINFO("DistanceJoint", "Distance Joint")
    Q_CLASSINFO("DampingRatio", "singleStep=0.01;minimum=0.0;maximum=1.0;")
    Q_CLASSINFO("FrequencyHZ", "singleStep=1;minimum=1;maximum=300;")
    Q_CLASSINFO("Length", "singleStep=0.5;minimum=0;")
    Q_CLASSINFO("Width", "singleStep=0.05;minimum=0;")
    Q_PROPERTY(bool CollideConnected READ collideConnected WRITE setCollideConnected USER true)
    Q_PROPERTY(double DampingRatio READ dampingRatio WRITE setDampingRatio USER true)
    Q_PROPERTY(double FrequencyHZ READ frequencyHz WRITE setFrequencyHz USER true)
    Q_PROPERTY(double Length READ length WRITE setLength USER true)
    Q_PROPERTY(double Width READ width WRITE setWidth USER true)
    Q_PROPERTY(QColor Color READ color WRITE setColor USER true)

public:
    // The ends of the line, in world coordinates, are the anchors on the two bodies.
    DistanceJoint(BodyItem* pItem1, BodyItem* pItem2, QLineF line);

    int type() const override { return DistanceJointType; }
    void update() override;
    QPolygonF snapPoints() const override;

    bool collideConnected() const { return definition.collideConnected; }
    double dampingRatio() const { return ratio; }
    // Hertz, always a whole number.
    double frequencyHz() const { return frequency; }
    // Metres: the rest length.
    double length() const;
    double width() const;
    QColor color() const;

public slots:
    // Box2D cannot change this on a live joint, so the joint is made anew, also for an
    // unchanged value.
    void setCollideConnected(bool collide);
    void setDampingRatio(double dampingRatio);
    // Rounded to a whole number; 0 or below makes the joint rigid.
    void setFrequencyHz(double frequencyHz);
    void setLength(double length);
    void setWidth(double width);
    void setColor(QColor color);

protected:
    b2Vec2 localAnchorA() const override { return definition.localAnchorA; }
    b2Vec2 localAnchorB() const override { return definition.localAnchorB; }

private:
    b2DistanceJoint* distanceJoint() const { return static_cast<b2DistanceJoint*>(joint()); }
    // Works the spring out for the bodies' present masses, into the definition and the joint.
    void applySpring();
    // Brings rest length, length bounds and spring of the definition to the live joint.
    void applyDefinition();

    b2DistanceJointDef definition;
    QGraphicsLineItem* lineItem;
    double frequency = 0.0;
    double ratio = 0.0;
};
Q_DECLARE_METATYPE(DistanceJoint*)
