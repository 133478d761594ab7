#include "Commands/ChainCommand.h"

#include "Physics/CircleItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/RevoluteJoint.h"

#include <QLineF>
#include <QObject>

ChainCommand::ChainCommand(const QPolygonF& points, int attachPoint, const QBrush& brush,
                           QUndoCommand* parent)
    : ComplexCommand(QObject::tr("Chain"), parent)
{
    if (points.size() < 2)
        return;
    const double radius = QLineF(points.at(0), points.at(1)).length() / 2.0;
    if (!(radius > 0.0))
        return;
    QList<CircleItem*> circles;
    for (const QPointF& point : points) {
        auto* circle = new CircleItem(point.x(), point.y(), 0.0, radius);
        circle->setBrush(brush);
        circle->setShowLine(false);
        circle->setFixedRotation(true);
        circles.append(circle);
    }
    QList<PhysicsItem*> items(circles.begin(), circles.end());
    for (int i = 0; i + 1 < circles.size(); ++i) {
        const QPointF a(circles.at(i)->positionX(), circles.at(i)->positionY());
        const QPointF b(circles.at(i + 1)->positionX(), circles.at(i + 1)->positionY());
        auto* joint = new DistanceJoint(circles.at(i), circles.at(i + 1), QLineF(a, b));
        joint->setOpacity(linkJointOpacity);
        items.append(joint);
    }
    for (CircleItem* end : {pinsFirst(attachPoint) ? circles.first() : nullptr,
                            pinsLast(attachPoint) ? circles.last() : nullptr}) {
        if (!end)
            continue;
        auto* pin = new RevoluteJoint(end, nullptr, QPointF(end->positionX(), end->positionY()),
                                      pinRadius);
        pin->setRadius(radius);
        items.append(pin);
    }
    for (PhysicsItem* item : qAsConst(items))
        record(item);
}
