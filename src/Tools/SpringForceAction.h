#pragma once

#include "Tools/BodyPairAction.h"

class SpringGraphicsItem;

// Joins two bodies with a spring between the press point and the release point; the drag must
// end on another body. Stiffness, damping and colour are those of the settings at the moment
// of use. The preview is drawn relaxed, its rest length following the drag.
class SpringForceAction : public BodyPairAction
{
    Q_OBJECT

public:
    SpringForceAction(QObject* parent, GraphicsView* graphicsView);

public slots:
    void mousePressEvent(QMouseEvent* event) override;

protected:
    QGraphicsItem* preview() const override;
    void setPreviewLine(const QLineF& line) override;
    QUndoCommand* createCommand(BodyItem* first, BodyItem* second,
                                const QLineF& line) const override;

private:
    static QColor springColor();

    SpringGraphicsItem* spring;
};
