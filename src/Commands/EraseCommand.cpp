#include "Commands/EraseCommand.h"

#include "General/PolygonClipper.h"
#include "Physics/BodyItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/RevoluteJoint.h"

#include <QGraphicsItem>
#include <QObject>
#include <QSet>

namespace {
// Metres: coordinates closer than this are the same.
const double samePointTolerance = 1e-12;
// Metres: the radius of a revolute joint that moves to a piece.
const double movedRevoluteRadius = 0.2;

bool samePoint(const QPointF& a, const QPointF& b)
{
    return qAbs(a.x() - b.x()) <= samePointTolerance && qAbs(a.y() - b.y()) <= samePointTolerance;
}
} // namespace

EraseCommand::EraseCommand(const QPolygonF& eraser, QUndoCommand* parent)
    : ComplexCommand(QObject::tr("Erase"), parent)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    QList<BodyItem*> cutBodies;
    const QRectF reach = eraser.boundingRect();
    for (BodyItem* body : world->bodyItems()) {
        // Most bodies of a large scene lie far from the stroke: spare them the path arithmetic.
        if (!body->isActive() || !body->graphicsItem()->sceneBoundingRect().intersects(reach))
            continue;
        const QPolygonF outline = body->worldPolygon();
        if (outline.isEmpty() || !cutsPart(outline, eraser))
            continue;
        QList<BodyItem*>& pieces = fragments[body];
        for (const QPolygonF& remains :
             PolygonClipper().clip(ClipperLib::ctDifference, outline, eraser)) {
            auto* piece = new PolygonItem(remains);
            dress(piece, body);
            pieces.append(piece);
            record(piece);
        }
        replacedItems.append(body);
        cutBodies.append(body);
    }
    moveJoints(cutBodies);
    fragments.clear();
}

bool EraseCommand::cutsPart(const QPolygonF& outline, const QPolygonF& eraser)
{
    QPolygonF remains = outline.subtracted(eraser);
    if (remains.size() < 2)
        return false;
    if (samePoint(remains.last(), remains.first()))
        remains.removeLast();
    if (remains.size() != outline.size())
        return true;
    for (int i = 0; i < remains.size(); ++i) {
        if (!samePoint(remains.at(i), outline.at(i)))
            return true;
    }
    return false;
}

void EraseCommand::moveJoints(const QList<BodyItem*>& cutBodies)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    QSet<JointItem*> done;
    for (BodyItem* body : cutBodies) {
        for (JointItem* joint : world->jointList(body)) {
            if (!joint->isActive() || done.contains(joint))
                continue;
            QPointF anchor1 = joint->anchorA();
            QPointF anchor2 = joint->anchorB();
            auto* prismatic = qobject_cast<PrismaticJoint*>(joint);
            if (prismatic) {
                anchor1 = prismatic->trackEnd1();
                anchor2 = prismatic->trackEnd2();
            }
            BodyItem* piece1 = fragmentAt(joint->bodyItem1(), anchor1);
            BodyItem* piece2 = fragmentAt(joint->bodyItem2(), anchor2);
            JointItem* moved = nullptr;
            if (joint->type() == PhysicsItem::RevoluteJointType)
                moved = new RevoluteJoint(piece1, piece2, anchor1, movedRevoluteRadius);
            else if (joint->type() == PhysicsItem::DistanceJointType)
                moved = new DistanceJoint(piece1, piece2, QLineF(anchor1, anchor2));
            else if (prismatic)
                moved = new PrismaticJoint(piece1, piece2, QLineF(anchor1, joint->anchorA()),
                                           QLineF(anchor2, joint->anchorB()));
            if (moved) {
                // Recorded while active, as the joint stands; redo activates it.
                record(moved);
            }
            done.insert(joint);
            replacedItems.append(joint);
        }
    }
}

BodyItem* EraseCommand::fragmentAt(BodyItem* body, const QPointF& point) const
{
    BodyItem* result = body;
    for (BodyItem* piece : fragments.value(body)) {
        if (piece->worldPolygon().containsPoint(point, Qt::WindingFill))
            result = piece;
    }
    return result;
}

void EraseCommand::redo()
{
    replacedItems.setActive(false);
    ComplexCommand::redo();
}

void EraseCommand::undo()
{
    ComplexCommand::undo();
    replacedItems.setActive(true);
}
