#include "Physics/PulleyJoint.h"

#include <QGraphicsLineItem>
#include <QGraphicsPixmapItem>

namespace {
// Degrees a wheel turns for each metre of rope that runs over it.
const double degreesPerMetre = 50.0;
// The wheel picture's pixels are this many metres.
const double wheelScale = 0.002;
} // namespace

PulleyJoint::PulleyJoint(BodyItem* pItem1, BodyItem* pItem2, QPolygonF polygon)
    : JointItem(pItem1, pItem2, &definition)
{
    // A script may hand in fewer than four points; the missing ones are the origin.
    const QPointF anchor1 = polygon.value(0);
    const QPointF ground1 = polygon.value(1);
    const QPointF ground2 = polygon.value(2);
    const QPointF anchor2 = polygon.value(3);
    groundLine = new QGraphicsLineItem(QLineF(ground1, ground2));
    pGraphicsItem = groundLine;
    setUpGraphics();
    firstRope = new QGraphicsLineItem(QLineF(ground1, anchor1), groundLine);
    secondRope = new QGraphicsLineItem(QLineF(ground2, anchor2), groundLine);
    for (QGraphicsLineItem* line : {groundLine, firstRope, secondRope})
        line->setPen(linePen(Qt::green, lineWidth));
    firstWheel = createWheel(firstRope, ground1);
    secondWheel = createWheel(secondRope, ground2);

    definition.collideConnected = true;
    definition.Initialize(body1(), body2(), toVec2(ground1), toVec2(ground2), toVec2(anchor1),
                          toVec2(anchor2), 1.0f);
    lastLength = definition.lengthA;
    createJoint();
}

QGraphicsPixmapItem* PulleyJoint::createWheel(QGraphicsLineItem* rope, const QPointF& position)
{
    const QPixmap pixmap(QStringLiteral(":/images/disc.png"));
    auto* wheel = new QGraphicsPixmapItem(pixmap, rope);
    wheel->setFlag(QGraphicsItem::ItemIgnoresParentOpacity);
    wheel->setTransformationMode(Qt::SmoothTransformation);
    // Centred on its position, so that it turns about its middle.
    wheel->setOffset(-pixmap.width() / 2.0, -pixmap.height() / 2.0);
    wheel->setTransform(QTransform::fromScale(wheelScale, wheelScale), true);
    wheel->setPos(position);
    return wheel;
}

void PulleyJoint::update()
{
    if (!isActive())
        return;
    firstRope->setLine(QLineF(firstRope->line().p1(), anchorA()));
    secondRope->setLine(QLineF(secondRope->line().p1(), anchorB()));
    // Box2D 2.4's GetLengthA is the length at construction; the wheels follow the present one.
    const double length = pulleyJoint()->GetCurrentLengthA();
    const double delta = (length - lastLength) * degreesPerMetre;
    for (QGraphicsPixmapItem* wheel : {firstWheel, secondWheel})
        wheel->setRotation(wheel->rotation() + delta);
    lastLength = length;
    runOnUpdate();
}
