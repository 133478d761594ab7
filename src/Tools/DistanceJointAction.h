#pragma once

#include "Tools/BodyPairAction.h"

#include <QColor>

class QGraphicsLineItem;

// Joins a body to another body, or to the background where the drag ends off any body, with a
// distance joint between the press point and the release point.
class DistanceJointAction : public BodyPairAction
{
    Q_OBJECT

public:
    DistanceJointAction(QObject* parent, GraphicsView* graphicsView);

protected:
    // For the tools that make another joint with the same gesture; `color` of the preview.
    DistanceJointAction(const QIcon& icon, const QString& text, QObject* parent,
                        GraphicsView* graphicsView, const QColor& color);

    QGraphicsItem* preview() const override;
    void setPreviewLine(const QLineF& line) override;
    QUndoCommand* createCommand(BodyItem* first, BodyItem* second,
                                const QLineF& line) const override;

private:
    QGraphicsLineItem* lineItem;
};
