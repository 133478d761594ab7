#include "Tools/DistanceJointAction.h"

#include "Commands/DistanceJointCommand.h"
#include "Physics/JointItem.h"

#include <QGraphicsLineItem>
#include <QPen>

DistanceJointAction::DistanceJointAction(QObject* parent, GraphicsView* graphicsView)
    : DistanceJointAction(QIcon(QStringLiteral(":/icons/D.png")), tr("Create Distance Joint"),
                          parent, graphicsView, Qt::red)
{
}

DistanceJointAction::DistanceJointAction(const QIcon& icon, const QString& text, QObject* parent,
                                         GraphicsView* graphicsView, const QColor& color)
    : BodyPairAction(icon, text, parent, graphicsView)
    , lineItem(new QGraphicsLineItem())
{
    // As wide as the joints themselves, in metres.
    lineItem->setPen(
        QPen(QBrush(color), JointItem::lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    addPreview(lineItem, PreviewPen::Own);
    reset();
}

QGraphicsItem* DistanceJointAction::preview() const
{
    return lineItem;
}

void DistanceJointAction::setPreviewLine(const QLineF& line)
{
    lineItem->setLine(line);
}

QUndoCommand* DistanceJointAction::createCommand(BodyItem* first, BodyItem* second,
                                                 const QLineF& line) const
{
    return new DistanceJointCommand(first, second, line.p1(), line.p2());
}
