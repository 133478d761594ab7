#pragma once

#include "Physics/CircleItem.h"

// A disc that lifts itself: at each update it adds a force that carries its weight against
// a gravity of 10 m/s² and accelerates it upwards by Force m/s².
class BalloonItem : public CircleItem
{
    Q_OBJECT
    Q_CLASSINFO("BalloonItem", "Balloon")
    Q_PROPERTY(double Force READ force WRITE setForce USER true)

public:
    // theta in radians, r in metres.
    BalloonItem(double x, double y, double theta, double r);

    int type() const override { return BalloonItemType; }
    void update() override;

    double force() const { return liftAcceleration; }

public slots:
    void setForce(double force);

private:
    double liftAcceleration = 0.5;
};
Q_DECLARE_METATYPE(BalloonItem*)
