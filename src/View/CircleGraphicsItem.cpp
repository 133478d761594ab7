#include "View/CircleGraphicsItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtMath>
#include <cmath>

namespace {
// Pixels: how far a side may fall inside the true circle, below what antialiasing shows.
const double tolerance = 0.1;
// Side counts go up in steps of this many, so that zooming rebuilds the outline seldom.
const int sideStep = 8;
const int maximumSides = 1024;

int sidesFor(double pixelRadius)
{
    if (!(pixelRadius > tolerance))
        return sideStep;
    const double sides = M_PI / std::acos(1.0 - tolerance / pixelRadius);
    const int stepped
        = (int(std::ceil(qMin(sides, double(maximumSides)))) + sideStep - 1) / sideStep * sideStep;
    return qMax(2 * sideStep, stepped);
}
} // namespace

CircleGraphicsItem::CircleGraphicsItem(double radius, QGraphicsItem* parent)
    : QGraphicsEllipseItem(-radius, -radius, 2 * radius, 2 * radius, parent)
    , radius(radius)
{
}

void CircleGraphicsItem::setRadius(double radius)
{
    this->radius = radius;
    setRect(-radius, -radius, 2 * radius, 2 * radius);
    outline.clear();
}

void CircleGraphicsItem::setSpokeVisible(bool visible)
{
    spokeVisible = visible;
    update();
}

void CircleGraphicsItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                               QWidget* widget)
{
    if (option->state & QStyle::State_Selected) {
        // Few items are selected: the ellipse and its selection frame as Qt draws them.
        QGraphicsEllipseItem::paint(painter, option, widget);
    } else {
        const int sides
            = sidesFor(radius * option->levelOfDetailFromTransform(painter->worldTransform()));
        if (outline.size() != sides) {
            outline.resize(sides);
            for (int i = 0; i < sides; ++i) {
                const double a = 2.0 * M_PI * i / sides;
                outline[i] = QPointF(radius * std::cos(a), radius * std::sin(a));
            }
        }
        painter->setPen(pen());
        painter->setBrush(brush());
        painter->drawPolygon(outline);
    }
    if (spokeVisible) {
        painter->setPen(pen());
        painter->drawLine(QPointF(0.0, 0.0), QPointF(0.0, radius));
    }
}
