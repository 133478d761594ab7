#pragma once

#include "Tools/BooleanAction.h"

// Merges the two top bodies under the cursor into one.
class UnionAction : public BooleanAction
{
    Q_OBJECT

public:
    UnionAction(QObject* parent, GraphicsView* graphicsView);

    QList<QPolygonF> operate(const QPolygonF& first, const QPolygonF& second) override;
    int operationType() override;
};
