#pragma once

#include "Tools/DistanceJointAction.h"

// Joins a body to another body, or to the background, with a prismatic joint drawn as a
// distance joint is: the bodies slide along the drag, each anchored at its end of it.
class PrismaticJointAction : public DistanceJointAction
{
    Q_OBJECT

public:
    PrismaticJointAction(QObject* parent, GraphicsView* graphicsView);

protected:
    QUndoCommand* createCommand(BodyItem* first, BodyItem* second,
                                const QLineF& line) const override;
};
