#include "Physics/DistanceJoint.h"

#include "Physics/Box2DLimits.h"
#include "Physics/JointSoftness.h"

#include <QGraphicsLineItem>

DistanceJoint::DistanceJoint(BodyItem* pItem1, BodyItem* pItem2, QLineF line)
    : JointItem(pItem1, pItem2, &definition)
    , lineItem(new QGraphicsLineItem(line))
{
    lineItem->setPen(linePen(Qt::red, lineWidth));
    pGraphicsItem = lineItem;
    setUpGraphics();
    definition.Initialize(body1(), body2(), toVec2(line.p1()), toVec2(line.p2()));
    definition.collideConnected = true;
    createJoint();
}

void DistanceJoint::update()
{
    if (!isActive())
        return;
    lineItem->setLine(QLineF(anchorA(), anchorB()));
    // Box2D's stiffness holds for the masses it was worked out for; a body whose density
    // changed would otherwise change the frequency, which the program keeps fixed.
    applySpring();
    runOnUpdate();
}

QPolygonF DistanceJoint::snapPoints() const
{
    const QLineF line(anchorA(), anchorB());
    return QPolygonF() << line.p1() << line.center() << line.p2();
}

double DistanceJoint::length() const
{
    // Box2D clamps the length it is given, so the live joint has the last word.
    return distanceJoint() ? distanceJoint()->GetLength() : definition.length;
}

double DistanceJoint::width() const
{
    return lineItem->pen().widthF();
}

QColor DistanceJoint::color() const
{
    return lineItem->pen().color();
}

void DistanceJoint::setCollideConnected(bool collide)
{
    definition.collideConnected = collide;
    rebuildJoint();
}

void DistanceJoint::setDampingRatio(double dampingRatio)
{
    if (dampingRatio == ratio || !Box2DLimits::isCoefficient(dampingRatio))
        return;
    ratio = dampingRatio;
    applySpring();
}

void DistanceJoint::setFrequencyHz(double frequencyHz)
{
    if (!Box2DLimits::isFrequency(frequencyHz))
        return;
    const double rounded = std::round(frequencyHz);
    if (rounded == frequency)
        return;
    frequency = rounded;
    applyDefinition();
}

void DistanceJoint::setLength(double length)
{
    if (length == this->length() || !Box2DLimits::isLength(length))
        return;
    definition.length = float(length);
    applyDefinition();
}

void DistanceJoint::setWidth(double width)
{
    if (width == this->width() || !Box2DLimits::isLength(width))
        return;
    QPen pen = lineItem->pen();
    pen.setWidthF(width);
    lineItem->setPen(pen);
}

void DistanceJoint::setColor(QColor color)
{
    if (color == this->color() || !color.isValid())
        return;
    QPen pen = lineItem->pen();
    pen.setColor(color);
    lineItem->setPen(pen);
}

void DistanceJoint::applySpring()
{
    JointSoftness::apply(definition, frequency, ratio);
    if (b2DistanceJoint* joint = distanceJoint()) {
        joint->SetStiffness(definition.stiffness);
        joint->SetDamping(definition.damping);
    }
}

void DistanceJoint::applyDefinition()
{
    applySpring();
    b2DistanceJoint* joint = distanceJoint();
    if (!joint)
        return;
    joint->SetLength(definition.length);
    // Box2D bounds the minimum by the present maximum and the maximum by the present minimum,
    // so the range is opened first and then closed to the new bounds.
    joint->SetMinLength(0.0f);
    joint->SetMaxLength(definition.maxLength);
    joint->SetMinLength(definition.minLength);
}
