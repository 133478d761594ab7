#include "Physics/GearItem.h"

#include "General/XPolygonF.h"
#include "Physics/Box2DLimits.h"
#include "Physics/PolygonItem.h"
#include "View/CircleGraphicsItem.h"
#include "View/GearGraphicsItem.h"

#include <cmath>

namespace {
// 2π in single precision, as a double: the tooth count and the tooth angles are computed with
// it, which fixes the teeth of a stored scene to the same digits.
const double twoPi = 6.2831854820251465;

// A script can ask for any size; beyond this many teeth the fixtures would exhaust memory
// before they made a wheel.
const double maximumToothCount = 10000.0;

int toothCount(double pitchCircleRadius, double toothCountDivisor)
{
    const double count = std::round(pitchCircleRadius * twoPi / toothCountDivisor);
    return std::isfinite(count) && count > 0.0 ? int(qMin(count, maximumToothCount)) : 0;
}

// The constructor takes any value it is handed; a size Box2D cannot take makes no gear.
double sizeOrZero(double value)
{
    return Box2DLimits::isSize(value) ? value : 0.0;
}

} // namespace

QList<QPolygonF> gearTeeth(double pitchCircleRadius, double toothSize, double toothCountDivisor)
{
    const int count = toothCount(pitchCircleRadius, toothCountDivisor);
    const double inner = pitchCircleRadius - toothSize / 2;
    const double outer = pitchCircleRadius + toothSize / 2;
    const double quarterStep = twoPi / count / 4;
    QList<QPolygonF> teeth;
    for (int i = 0; i < count; ++i) {
        const double a = float(i) * float(twoPi) / float(count);
        teeth.append(QPolygonF() << QPointF(inner * std::cos(a), inner * std::sin(a))
                                 << QPointF(outer * std::cos(a + quarterStep),
                                            outer * std::sin(a + quarterStep))
                                 << QPointF(outer * std::cos(a + 2 * quarterStep),
                                            outer * std::sin(a + 2 * quarterStep))
                                 << QPointF(inner * std::cos(a + 3 * quarterStep),
                                            inner * std::sin(a + 3 * quarterStep)));
    }
    return teeth;
}

QPolygonF gearOutline(double pitchCircleRadius, double toothSize, double toothCountDivisor)
{
    QPolygonF outline;
    for (const QPolygonF& tooth : gearTeeth(pitchCircleRadius, toothSize, toothCountDivisor))
        outline << tooth;
    return outline;
}

GearItem::GearItem(double x, double y, double theta, double pitchCircleRadius, double toothSize,
                   double toothCountDivisor)
    : BodyItem(x, y, theta)
    , radius(sizeOrZero(pitchCircleRadius))
    , size(sizeOrZero(toothSize))
    , divisor(sizeOrZero(toothCountDivisor))
{
    gearGraphicsItem = new GearGraphicsItem(radius, size, divisor);
    pGraphicsItem = gearGraphicsItem;
    // Sized once: a later change of the radius does not resize the circle.
    pitchCircle = new CircleGraphicsItem(radius, pGraphicsItem);
    pitchCircle->setSpokeVisible(false);
    pitchCircle->setOpacity(0.5);
    pitchCircle->setVisible(false);
    initialiseGraphics(x, y, theta);
    rebuild();
}

void GearItem::setShowPitchCircle(bool show)
{
    if (show == pitchCircleShown)
        return;
    pitchCircleShown = show;
    pitchCircle->setVisible(show);
}

void GearItem::setPitchCircleRadius(double pitchCircleRadius)
{
    setSize(radius, pitchCircleRadius);
}

void GearItem::setToothSize(double toothSize)
{
    setSize(size, toothSize);
}

void GearItem::setToothCountDivisor(double toothCountDivisor)
{
    setSize(divisor, toothCountDivisor);
}

void GearItem::setSize(double& field, double value)
{
    if (value == field || !Box2DLimits::isSize(value))
        return;
    field = value;
    rebuild();
}

void GearItem::rebuild()
{
    QList<b2Shape*> shapes;
    // The disc reaches out to the root of the teeth; teeth longer than the radius leave none.
    const float discRadius = float(radius - size / 2);
    if (Box2DLimits::isSize(discRadius)) {
        auto* disc = new b2CircleShape();
        disc->m_radius = discRadius;
        disc->m_p.SetZero();
        shapes.append(disc);
    }
    for (const QPolygonF& tooth : gearTeeth(radius, size, divisor)) {
        if (b2PolygonShape* shape = PolygonItem::polygonShape(XPolygonF(tooth)))
            shapes.append(shape);
    }
    setShapes(shapes);
    gearGraphicsItem->setGear(radius, size, divisor);
}

QPolygonF GearItem::snapPoints() const
{
    return QPolygonF() << QPointF(0, 0);
}

QPolygonF GearItem::worldPolygon() const
{
    const QPolygonF outline = gearGraphicsItem->polygon();
    if (outline.size() < 3)
        return QPolygonF();
    return XPolygonF(itemTransform().map(outline));
}
