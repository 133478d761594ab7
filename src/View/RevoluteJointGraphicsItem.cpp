#include "View/RevoluteJointGraphicsItem.h"

#include "View/CosmeticPens.h"

#include <QBrush>

RevoluteJointGraphicsItem::RevoluteJointGraphicsItem(double radius, QGraphicsItem* parent)
    : QGraphicsEllipseItem(parent)
    , disc(new QGraphicsEllipseItem(this))
{
    setBrush(Qt::black);
    disc->setBrush(Qt::lightGray);
    for (int i = 0; i < 4; ++i) {
        auto* dot = new QGraphicsEllipseItem(disc);
        dot->setBrush(Qt::black);
        dots.append(dot);
    }
    CosmeticPens::apply(this);
    setRadius(radius);
}

void RevoluteJointGraphicsItem::setRadius(double radius)
{
    const double r = radius;
    setRect(-r, -r, 2 * r, 2 * r);
    disc->setRect(-r / 2, -r / 2, r, r);
    const QPointF positions[] = {{-r / 4, 0}, {0, r / 4}, {r / 4, 0}, {0, -r / 4}};
    for (int i = 0; i < dots.size(); ++i) {
        dots[i]->setRect(-r / 12, -r / 12, r / 6, r / 6);
        dots[i]->setPos(positions[i]);
    }
}
