#include "Tools/DifferenceAction.h"

#include "Commands/BooleanCommand.h"
#include "General/PolygonClipper.h"

DifferenceAction::DifferenceAction(QObject* parent, GraphicsView* graphicsView)
    : BooleanAction(QIcon(QStringLiteral(":/icons/difference.png")), tr("Difference"), parent,
                    graphicsView)
{
}

QList<QPolygonF> DifferenceAction::operate(const QPolygonF& first, const QPolygonF& second)
{
    return PolygonClipper().clip(ClipperLib::ctDifference, second, first);
}

int DifferenceAction::operationType()
{
    return BooleanCommand::Difference;
}
