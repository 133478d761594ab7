#include "Physics/CircleItem.h"

#include "Physics/Box2DLimits.h"

#include "View/CircleGraphicsItem.h"

#include <cmath>

CircleItem::CircleItem(double x, double y, double theta, double r)
    : BodyItem(x, y, theta)
    , circleRadius(r)
{
    auto* shape = new b2CircleShape();
    shape->m_radius = float(r);
    shape->m_p.SetZero();
    setShapes({shape});
    circleGraphicsItem = new CircleGraphicsItem(r);
    pGraphicsItem = circleGraphicsItem;
    initialiseGraphics(x, y, theta);
    setShowLine(!isStatic());
}

void CircleItem::setRadius(double r)
{
    if (!Box2DLimits::isSize(r) || r == circleRadius)
        return;
    circleRadius = r;
    circleGraphicsItem->setRadius(r);
    // The definition's shape was made here, so it may be changed in place.
    const_cast<b2Shape*>(fixtureDefinitions.first()->shape)->m_radius = float(r);
    recreateFixtures();
}

bool CircleItem::showLine() const
{
    return circleGraphicsItem->isSpokeVisible();
}

void CircleItem::setShowLine(bool show)
{
    circleGraphicsItem->setSpokeVisible(show);
}

void CircleItem::scale(double factor)
{
    const double r = circleRadius * factor;
    if (r < 0.1)
        return;
    setRadius(r);
}

QPolygonF CircleItem::snapPoints() const
{
    const double c = circleRadius - 0.005;
    return QPolygonF() << QPointF(0, 0) << QPointF(0, c) << QPointF(0, -c) << QPointF(c, 0)
                       << QPointF(-c, 0);
}

QPolygonF CircleItem::worldPolygon() const
{
    // 36 points every 10 degrees; the body's angle does not change a circle's outline.
    const QPointF centre = position();
    QPolygonF polygon;
    for (int i = 0; i < 72; i += 2) {
        const double a = i * M_PI / 36;
        polygon << QPointF(centre.x() + circleRadius * std::cos(a),
                           centre.y() + circleRadius * std::sin(a));
    }
    return polygon;
}
