#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QPolygonF>

class QGraphicsItemGroup;
class QUndoCommand;

// Base of the chain and rope tools: a drag lays links of one length along the mouse path, at
// most one per move, so that the links stay evenly spaced however fast the mouse goes; the
// preview shows them as they come, and the release makes them, from two links on.
class LinkAction : public GraphicsViewAction
{
    Q_OBJECT

public slots:
    void reset() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

protected:
    LinkAction(const QIcon& icon, const QString& text, QObject* parent, GraphicsView* graphicsView);

    // Metres between two points of the path.
    virtual double linkLength() const = 0;
    // Shows the link that the last point of the path adds.
    virtual void showLink() = 0;
    // The command that makes the links of a path of three or more points.
    virtual QUndoCommand* command() const = 0;
    // Adds a part of the preview, with the one-pixel outline of previews.
    void addToPreview(QGraphicsItem* part);

    QPolygonF points;

private:
    QGraphicsItemGroup* preview;
};
