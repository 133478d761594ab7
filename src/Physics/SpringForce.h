#pragma once

#include "Physics/ForceItem.h"

#include <QColor>
#include <QPointF>
#include <box2d/box2d.h>

class SpringGraphicsItem;

// A damped linear spring between a point on each of two bodies: a soft, visible connection
// drawn as a zigzag. Box2D knows nothing of it; at each update it adds its force to the bodies
// for the next step. Both bodies are required: given a null one, the spring is inert.
class SpringForce : public ForceItem
{
    Q_OBJECT
    Q_CLASSINFO("SpringForce", "Spring Force")
    Q_PROPERTY(QString BodyItem1Name READ bodyItem1Name USER true)
    Q_PROPERTY(QString BodyItem2Name READ bodyItem2Name USER true)
    Q_PROPERTY(QString Anchor1 READ anchor1 USER true)
    Q_PROPERTY(QString Anchor2 READ anchor2 USER true)
    Q_PROPERTY(double k READ k WRITE setK USER true)
    Q_PROPERTY(double Damping READ damping WRITE setDamping USER true)
    Q_PROPERTY(double DesiredDistance READ desiredDistance WRITE setDesiredDistance USER true)
    Q_PROPERTY(QColor Color READ color WRITE setColor USER true)

public:
    // p1 and p2 are world points on the first and the second body; the spring is relaxed at
    // their distance. k in N/m, damping in N·s/m.
    SpringForce(BodyItem* pItem1, BodyItem* pItem2, QPointF p1, QPointF p2, double k,
                double damping);

    int type() const override { return SpringForceType; }
    void update() override;
    // The world positions of the two anchors.
    QPolygonF snapPoints() const override;

public slots:
    QString bodyItem1Name() const;
    QString bodyItem2Name() const;
    QString anchor1() const;
    QString anchor2() const;
    double k() const { return stiffness; }
    double damping() const { return dampingValue; }
    double desiredDistance() const { return restLength; }
    QColor color() const;
    // The setters refuse values that Box2D could not take.
    void setK(double k);
    void setDamping(double damping);
    void setDesiredDistance(double desiredDistance);
    void setColor(QColor color);

private:
    // Moves the drawn coil's ends to the anchors, when either has moved by more than a pixel.
    void redraw(const QPointF& p1, const QPointF& p2);
    // The anchor as "x,y" with six significant digits, empty if the body is gone.
    static QString anchorText(const BodyItem* body, const b2Vec2& localAnchor);

    SpringGraphicsItem* springItem;
    b2Vec2 localAnchor1;
    b2Vec2 localAnchor2;
    double stiffness;
    double dampingValue;
    double restLength;
};
Q_DECLARE_METATYPE(SpringForce*)
