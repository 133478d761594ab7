#pragma once

#include "Tools/Action.h"

#include <QBrush>
#include <QPixmap>
#include <QPointF>
#include <QPointer>

class ActionContextWidget;
class GraphicsScene;
class GraphicsView;
class QGraphicsItem;
class QKeyEvent;
class QMouseEvent;
class QUndoCommand;
class QWheelEvent;

// Base of the tools. Exactly one tool is current; the view hands it every mouse, wheel and
// key event of its viewport, and the tool turns a finished gesture into commands on the undo
// stack. A tool is a checkable action, so choosing it and running it are the same object.
class GraphicsViewAction : public Action
{
    Q_OBJECT

public:
    GraphicsViewAction(const QIcon& icon, const QString& text, QObject* parent,
                       GraphicsView* graphicsView);
    ~GraphicsViewAction() override;

    // The scene point of a viewport position, snapped to the grid or to the nearest snap
    // point of an item as the settings say; shows the snap marker where it snapped.
    QPointF snappedScenePos(const QPoint& pos) const;

    // The tool's parameter strip, made by the subclass without a parent; null for a tool
    // without parameters. The context toolbar takes it at the tool's first turn and owns it
    // from then on, so the tool deletes only a strip that no toolbar took.
    QPointer<ActionContextWidget> contextWidget;

public slots:
    virtual void cancel();
    virtual void reset();
    virtual void mousePressEvent(QMouseEvent* event);
    virtual void mouseMoveEvent(QMouseEvent* event);
    virtual void mouseReleaseEvent(QMouseEvent* event);
    virtual void wheelEvent(QWheelEvent* event);
    virtual void keyPressEvent(QKeyEvent* event);

protected slots:
    void onTriggered() override;

protected:
    // The cursor of the tool: the pointer with the tool's icon beside it.
    virtual QPixmap cursorPixmap();
    // A fresh brush for the next body: a random colour, the wall texture for static bodies.
    void pickBrush();

    // Whether a preview keeps the pen it has or gets the one-pixel cosmetic pen of outlines.
    enum class PreviewPen { Cosmetic, Own };
    // Puts a tool's preview into the scene, hidden, above every item, at the given opacity.
    // The scene owns it from then on. A preview belongs to no physics item, so hit tests and
    // snapping pass over it.
    void addPreview(QGraphicsItem* preview, PreviewPen pen = PreviewPen::Cosmetic,
                    double opacity = 0.75) const;
    // Shows the sizes of a gesture beside the cursor; `pos` in viewport coordinates.
    void showSizeToolTip(const QPoint& pos, const QString& text) const;
    void hideSizeToolTip() const;
    // A length in metres as the size tooltips show it.
    static QString lengthText(double metres);

    GraphicsScene* graphicsScene() const;
    // Pushes a finished gesture's command on the application's undo stack, which takes it
    // and runs its first redo at once.
    static void push(QUndoCommand* command);

    GraphicsView* graphicsView;
    QBrush brush;
};
