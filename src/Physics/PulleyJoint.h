#pragma once

#include "Physics/JointItem.h"

#include <QPolygonF>

class QGraphicsLineItem;
class QGraphicsPixmapItem;

// Hangs two bodies, or a body and the background, from two fixed ground points on one rope:
// what one side gains in length the other loses. It is drawn as the line between the ground
// points with a rope down to each anchor, and a wheel at each ground point that turns as the
// rope runs over it.
class PulleyJoint : public JointItem
{
    Q_OBJECT
    Q_CLASSINFO("PulleyJoint", "Pulley Joint")
    Q_PROPERTY(double GroundAnchorA_X READ groundAnchorAX USER true)
    Q_PROPERTY(double GroundAnchorA_Y READ groundAnchorAY USER true)
    Q_PROPERTY(double GroundAnchorB_X READ groundAnchorBX USER true)
    Q_PROPERTY(double GroundAnchorB_Y READ groundAnchorBY USER true)

public:
    // Four points in world coordinates, in this order: the anchor on the first body, the first
    // ground point, the second ground point, the anchor on the second body.
    PulleyJoint(BodyItem* pItem1, BodyItem* pItem2, QPolygonF polygon);

    int type() const override { return PulleyJointType; }
    void update() override;

    double groundAnchorAX() const { return definition.groundAnchorA.x; }
    double groundAnchorAY() const { return definition.groundAnchorA.y; }
    double groundAnchorBX() const { return definition.groundAnchorB.x; }
    double groundAnchorBY() const { return definition.groundAnchorB.y; }

protected:
    b2Vec2 localAnchorA() const override { return definition.localAnchorA; }
    b2Vec2 localAnchorB() const override { return definition.localAnchorB; }

private:
    b2PulleyJoint* pulleyJoint() const { return static_cast<b2PulleyJoint*>(joint()); }
    QGraphicsPixmapItem* createWheel(QGraphicsLineItem* rope, const QPointF& position);

    b2PulleyJointDef definition;
    QGraphicsLineItem* groundLine;
    QGraphicsLineItem* firstRope;
    QGraphicsLineItem* secondRope;
    QGraphicsPixmapItem* firstWheel;
    QGraphicsPixmapItem* secondWheel;
    // Metres: the first rope's length at the last update.
    double lastLength;
};
Q_DECLARE_METATYPE(PulleyJoint*)
