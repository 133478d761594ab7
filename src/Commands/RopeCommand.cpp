#include "Commands/RopeCommand.h"

#include "Commands/ChainCommand.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"

#include <QLineF>
#include <QObject>

namespace {
// Degrees to radians with pi in float, as the links of earlier versions were turned.
const double singlePrecisionPi = 3.1415927;
} // namespace

RopeCommand::RopeCommand(const QPolygonF& points, int attachPoint, const QBrush& brush,
                         QUndoCommand* parent)
    : ComplexCommand(QObject::tr("Rope"), parent)
{
    QList<RectangleItem*> links;
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QLineF segment(points.at(i), points.at(i + 1));
        const QPointF middle = segment.center();
        auto* link = new RectangleItem(middle.x(), middle.y(),
                                       -segment.angle() * singlePrecisionPi / 180.0,
                                       segment.length(), segment.length() / 2.0);
        link->setBrush(brush);
        links.append(link);
    }
    if (links.isEmpty())
        return;
    QList<PhysicsItem*> items(links.begin(), links.end());
    const auto join = [&items](RectangleItem* link, RectangleItem* other, const QPointF& point) {
        auto* joint = new RevoluteJoint(link, other, point, ChainCommand::pinRadius);
        joint->setRadius(link->height() / 2.0);
        items.append(joint);
        return joint;
    };
    for (int i = 0; i + 1 < links.size(); ++i)
        join(links.at(i), links.at(i + 1), points.at(i + 1))
            ->setOpacity(ChainCommand::linkJointOpacity);
    if (ChainCommand::pinsFirst(attachPoint))
        join(links.first(), nullptr, points.first());
    if (ChainCommand::pinsLast(attachPoint))
        join(links.last(), nullptr, points.last());
    for (PhysicsItem* item : qAsConst(items))
        record(item);
}
