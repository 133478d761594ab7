#pragma once

#include "Physics/JointItem.h"

#include <QLineF>

class QGraphicsLineItem;

// Lets two bodies, or a body and the background, slide along an axis without turning against
// each other. It is drawn as the track between two points fixed to the bodies, with an arm
// from each of them to its body's anchor. A new joint slides a quarter of the drawn length
// to either side. The three slots act on the live joint only, for scripts: they are neither
// saved nor undone.
class PrismaticJoint : public JointItem
{
    Q_OBJECT
    Q_CLASSINFO("PrismaticJoint", "Prismatic Joint")
    Q_PROPERTY(double BodyItem1AnchorX READ bodyItem1AnchorX USER true)
    Q_PROPERTY(double BodyItem1AnchorY READ bodyItem1AnchorY USER true)
    Q_PROPERTY(double BodyItem2AnchorX READ bodyItem2AnchorX USER true)
    Q_PROPERTY(double BodyItem2AnchorY READ bodyItem2AnchorY USER true)

public:
    // World coordinates: line1.p1() and line2.p1() are the ends of the track, fixed to the
    // first and to the second body; line1.p2() and line2.p2() are the anchors on them.
    PrismaticJoint(BodyItem* pItem1, BodyItem* pItem2, QLineF line1, QLineF line2);

    int type() const override { return PrismaticJointType; }
    void update() override;

    // The ends of the track in world coordinates, as the bodies stand now.
    double bodyItem1AnchorX() const { return trackEnd1().x(); }
    double bodyItem1AnchorY() const { return trackEnd1().y(); }
    double bodyItem2AnchorX() const { return trackEnd2().x(); }
    double bodyItem2AnchorY() const { return trackEnd2().y(); }
    QPointF trackEnd1() const;
    QPointF trackEnd2() const;

public slots:
    // Metres along the axis; an upper limit below the lower one is taken as equal to it.
    // Turns the limits on.
    void setLimits(double lower, double upper);
    // Newtons; turns the motor on.
    void setMaxMotorForce(double force);
    // Metres per second; turns the motor on.
    void setMotorSpeed(double speed);

protected:
    b2Vec2 localAnchorA() const override { return definition.localAnchorA; }
    b2Vec2 localAnchorB() const override { return definition.localAnchorB; }

private:
    b2PrismaticJoint* prismaticJoint() const { return static_cast<b2PrismaticJoint*>(joint()); }

    b2PrismaticJointDef definition;
    // The track's ends in the coordinates of the first and of the second body.
    b2Vec2 localPoint1;
    b2Vec2 localPoint2;
    QGraphicsLineItem* track;
    QGraphicsLineItem* firstArm;
    QGraphicsLineItem* secondArm;
};
Q_DECLARE_METATYPE(PrismaticJoint*)
