#include "Tools/IntersectionAction.h"

#include "Commands/BooleanCommand.h"
#include "General/PolygonClipper.h"

IntersectionAction::IntersectionAction(QObject* parent, GraphicsView* graphicsView)
    : BooleanAction(QIcon(QStringLiteral(":/icons/intersection.png")), tr("Intersection"), parent,
                    graphicsView)
{
}

QList<QPolygonF> IntersectionAction::operate(const QPolygonF& first, const QPolygonF& second)
{
    return PolygonClipper().clip(ClipperLib::ctIntersection, first, second);
}

int IntersectionAction::operationType()
{
    return BooleanCommand::Intersection;
}
