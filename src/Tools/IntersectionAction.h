#pragma once

#include "Tools/BooleanAction.h"

// Keeps what the two top bodies under the cursor have in common.
class IntersectionAction : public BooleanAction
{
    Q_OBJECT

public:
    IntersectionAction(QObject* parent, GraphicsView* graphicsView);

    QList<QPolygonF> operate(const QPolygonF& first, const QPolygonF& second) override;
    int operationType() override;
};
