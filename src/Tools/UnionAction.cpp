#include "Tools/UnionAction.h"

#include "Commands/BooleanCommand.h"
#include "General/PolygonClipper.h"

UnionAction::UnionAction(QObject* parent, GraphicsView* graphicsView)
    : BooleanAction(QIcon(QStringLiteral(":/icons/union.png")), tr("Union"), parent, graphicsView)
{
}

QList<QPolygonF> UnionAction::operate(const QPolygonF& first, const QPolygonF& second)
{
    return PolygonClipper().clip(ClipperLib::ctUnion, first, second);
}

int UnionAction::operationType()
{
    return BooleanCommand::Union;
}
