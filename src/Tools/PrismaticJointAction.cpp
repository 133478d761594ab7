#include "Tools/PrismaticJointAction.h"

#include "Commands/PrismaticJointCommand.h"

PrismaticJointAction::PrismaticJointAction(QObject* parent, GraphicsView* graphicsView)
    : DistanceJointAction(QIcon(QStringLiteral(":/icons/Pr.png")), tr("Create Prismatic Joint"),
                          parent, graphicsView, Qt::blue)
{
}

QUndoCommand* PrismaticJointAction::createCommand(BodyItem* first, BodyItem* second,
                                                  const QLineF& line) const
{
    // Each body's line runs from its own end of the drag to the middle.
    const QPointF middle = line.center();
    return new PrismaticJointCommand(first, second, QLineF(line.p1(), middle),
                                     QLineF(line.p2(), middle));
}
