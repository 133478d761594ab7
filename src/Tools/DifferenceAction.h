#pragma once

#include "Tools/BooleanAction.h"

// Takes the top body under the cursor away from the body below it.
class DifferenceAction : public BooleanAction
{
    Q_OBJECT

public:
    DifferenceAction(QObject* parent, GraphicsView* graphicsView);

    QList<QPolygonF> operate(const QPolygonF& first, const QPolygonF& second) override;
    int operationType() override;
};
