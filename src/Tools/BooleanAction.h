#pragma once

#include "Tools/GraphicsViewAction.h"

#include <QList>
#include <QPolygonF>

class QGraphicsPathItem;

// Base of the tools that combine the two top bodies under the cursor: hovering over two
// bodies previews the result with the lower body's brush, a click replaces them by it. The
// bodies are found where the cursor is, without snapping.
class BooleanAction : public GraphicsViewAction
{
    Q_OBJECT

public:
    BooleanAction(const QIcon& icon, const QString& text, QObject* parent,
                  GraphicsView* graphicsView);

    // The outlines of the result; `first` is the top body's, `second` the one below it.
    virtual QList<QPolygonF> operate(const QPolygonF& first, const QPolygonF& second) = 0;
    // The operation code of BooleanCommand.
    virtual int operationType() = 0;

public slots:
    void reset() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QGraphicsPathItem* preview;
};
