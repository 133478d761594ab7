#include "Commands/PolygonCommand.h"

#include "Physics/PolygonItem.h"

#include <QObject>

PolygonCommand::PolygonCommand(const QPolygonF& polygon, const QBrush& brush, QUndoCommand* parent)
    : BodyCommand(new PolygonItem(polygon), brush, QObject::tr("Polygon"), parent)
{
}
