#pragma once

// Complete, for the guarded pointer.
#include "Physics/BodyItem.h"
#include "Tools/GraphicsViewAction.h"

#include <QLineF>
#include <QPointer>

class QGraphicsItem;

// Base of the tools that join two bodies with one drag: the press picks the first body, the
// release the second, and a preview shows the line between the two points. A press off any
// body makes the gesture inert. The first body is held guarded: a script may delete it, or an
// undo take it away, before the release, and the gesture then makes nothing.
class BodyPairAction : public GraphicsViewAction
{
    Q_OBJECT

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

protected:
    using GraphicsViewAction::GraphicsViewAction;

    // The subclass's preview, made and added by its constructor, which then calls reset().
    virtual QGraphicsItem* preview() const = 0;
    virtual void setPreviewLine(const QLineF& line) = 0;
    // The command that joins `first` to `second` (null: the background) along the drag, from
    // the press point to the release point; null where `second` does not fit.
    virtual QUndoCommand* createCommand(BodyItem* first, BodyItem* second,
                                        const QLineF& line) const = 0;

private:
    // The body of the press while it is still in the scene, else null.
    BodyItem* firstBody() const;

    QPointer<BodyItem> first;
    QPointF start;
};
