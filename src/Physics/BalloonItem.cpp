#include "Physics/BalloonItem.h"

#include "Physics/Box2DLimits.h"

#include <QRadialGradient>

BalloonItem::BalloonItem(double x, double y, double theta, double r)
    : CircleItem(x, y, theta, r)
{
    setShowLine(false);
    QRadialGradient gradient(QPointF(0, 0), r, QPointF(0, 0));
    gradient.setColorAt(0.0, QColor(qrand() % 255, qrand() % 255, qrand() % 255, 255));
    gradient.setColorAt(1.0, Qt::white);
    setBrush(QBrush(gradient));
}

void BalloonItem::setForce(double force)
{
    if (Box2DLimits::isMagnitude(force))
        liftAcceleration = force;
}

void BalloonItem::update()
{
    CircleItem::update();
    b2Body* balloon = body();
    if (balloon->GetType() != b2_dynamicBody)
        return;
    // The lift does not follow the world's gravity: it is always 10 m/s² plus Force.
    balloon->SetAwake(true);
    balloon->ApplyForceToCenter(b2Vec2(0.0f, float((liftAcceleration + 10.0) * balloon->GetMass())),
                                true);
}
