#include "Commands/BooleanCommand.h"

#include "General/PolygonClipper.h"
#include "Physics/BodyItem.h"
#include "Physics/PolygonItem.h"

#include <QObject>

namespace {
QString operationText(int type)
{
    switch (type) {
    case BooleanCommand::Union:
        return QObject::tr("Union");
    case BooleanCommand::Difference:
        return QObject::tr("Difference");
    default:
        return QObject::tr("Intersection");
    }
}

ClipperLib::ClipType clipType(int type)
{
    switch (type) {
    case BooleanCommand::Union:
        return ClipperLib::ctUnion;
    case BooleanCommand::Difference:
        return ClipperLib::ctDifference;
    default:
        return ClipperLib::ctIntersection;
    }
}
} // namespace

BooleanCommand::BooleanCommand(BodyItem* item1, BodyItem* item2, int type, QUndoCommand* parent)
    : ComplexCommand(operationText(type), parent)
    , firstBody(item1)
    , secondBody(item2)
{
    for (const QPolygonF& result :
         PolygonClipper().clip(clipType(type), item1->worldPolygon(), item2->worldPolygon())) {
        auto* piece = new PolygonItem(result);
        dress(piece, item1);
        record(piece);
    }
}

void BooleanCommand::redo()
{
    for (BodyItem* body : {firstBody.data(), secondBody.data()}) {
        if (body)
            body->setActive(false);
    }
    ComplexCommand::redo();
}

void BooleanCommand::undo()
{
    ComplexCommand::undo();
    for (BodyItem* body : {firstBody.data(), secondBody.data()}) {
        if (body)
            body->setActive(true);
    }
}
