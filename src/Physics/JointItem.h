#pragma once

#include "Physics/PhysicsItem.h"

#include <QPen>
#include <QPointF>
#include <box2d/box2d.h>

// Base of the joints. A joint joins a first body item to a second one or, if the second is
// null, to the world's background body, and pairs one b2Joint with a graphics item. Box2D
// cannot switch a joint off, so an inactive joint has no b2Joint at all: the item keeps the
// joint's definition (a member of the concrete class, which owns it) and creates the joint
// anew from it. Every setter of a lasting setting therefore writes to the definition as well
// as to the live joint, and the settings are read from the definition, active or not. The
// world removes a joint before its bodies; should a body go first all the same, Box2D has
// destroyed the joint with it and the item forgets both and stays inactive.
class JointItem : public PhysicsItem
{
    Q_OBJECT
    Q_CLASSINFO("JointItem", "Joint")
    Q_PROPERTY(double ReactionTorque READ reactionTorque USER true)
    Q_PROPERTY(QString BodyItem1Name READ bodyItem1Name USER true)
    Q_PROPERTY(QString BodyItem2Name READ bodyItem2Name USER true)
    Q_PROPERTY(QString Anchor1 READ anchor1 USER true)
    Q_PROPERTY(QString Anchor2 READ anchor2 USER true)

public:
    ~JointItem() override;

    bool isActive() const override { return pJoint != nullptr; }
    void setActive(bool active) override;

    // For settings that Box2D cannot change on a live joint, and for a joint whose impulses
    // have gone out of the finite numbers: destroys it and creates it anew from the
    // definition. Does nothing while inactive.
    void rebuildJoint();

    BodyItem* bodyItem1() const { return pBodyItem1; }
    // Null for a joint to the background body.
    BodyItem* bodyItem2() const { return pBodyItem2; }

    double reactionTorque() const { return 0.0; }
    QString bodyItem1Name() const;
    QString bodyItem2Name() const;
    // The anchors in world coordinates as "x,y", six significant digits each.
    QString anchor1() const;
    QString anchor2() const;
    // The anchors in world coordinates, from the live joint or, while there is none, from the
    // definition.
    QPointF anchorA() const;
    QPointF anchorB() const;

    // Box2D radians to the degrees of joint properties: the exact inverse of
    // BodyItem::degreesToRadians, so a value written in degrees reads back as it was but for
    // Box2D's float.
    static double radiansToDegrees(double radians);

    // Metres: the width of the joints' lines.
    static constexpr double lineWidth = 0.1;

protected:
    // `definition` is the concrete definition, a member of the subclass that outlives the
    // base's use of it; the subclass fills it and then calls createJoint().
    JointItem(BodyItem* pItem1, BodyItem* pItem2, b2JointDef* definition);

    b2Joint* joint() const { return pJoint; }
    // The b2Body of the first and of the second body item, or the background body for none.
    b2Body* body1() const;
    b2Body* body2() const;
    // The local anchors that the definition holds, in the coordinates of each body.
    virtual b2Vec2 localAnchorA() const = 0;
    virtual b2Vec2 localAnchorB() const = 0;

    // Creates the b2Joint from the definition; does nothing for a joint that cannot be made.
    void createJoint();
    void wakeBodies();
    // The set-up that every joint's main graphics item shares: selectable, above all bodies
    // and every earlier joint, half transparent.
    void setUpGraphics();

    // A solid line pen with round ends, width in metres.
    static QPen linePen(const QColor& color, double width);
    static b2Vec2 toVec2(const QPointF& point);
    static QPointF toPointF(const b2Vec2& vector);

private:
    void destroyJoint();
    void forgetBody(BodyItem*& item, b2Body*& body);

    static double zValueCounter;

    b2Joint* pJoint = nullptr;
    b2JointDef* pDefinition;
    BodyItem* pBodyItem1;
    BodyItem* pBodyItem2;
    b2Body* background;
    bool bodyLost = false;
};
Q_DECLARE_METATYPE(JointItem*)
