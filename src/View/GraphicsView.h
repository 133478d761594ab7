#pragma once

#include <QBasicTimer>
#include <QBrush>
#include <QGraphicsView>
#include <QImage>
#include <QPointer>

class BodyItem;
class GraphicsViewAction;
class GridGraphicsItem;
class PhysicsItem;
class SnapPointGraphicsItem;
class StatusBar;

// The central view on the world's scene. Scene units are metres with y up; the view matrix
// holds the zoom in pixels per metre and turns the y axis over. The view hands every mouse,
// wheel and key event to the current tool, key events also to the items' scripts, follows the
// camera body, counts paints per second and draws the scale indicator. The grid and the snap
// marker are owned by the scene; the view keeps pointers to them.
class GraphicsView : public QGraphicsView
{
    Q_OBJECT
    // The view's part of a scene file: the only properties of the view flagged USER.
    Q_PROPERTY(QBrush Background READ backgroundBrush WRITE setBackground NOTIFY backgroundChanged
                   USER true)
    Q_PROPERTY(QString BodyWithCamera READ bodyWithCamera WRITE setBodyWithCamera NOTIFY
                   bodyWithCameraChanged USER true)
    Q_PROPERTY(double Scale READ scale WRITE setScale NOTIFY scaleChanged USER true)
    Q_PROPERTY(QRectF VisibleSceneRect READ visibleSceneRect WRITE setVisibleSceneRect USER true)

public:
    explicit GraphicsView(QWidget* parent = nullptr);

    // Pixels per metre of a new view.
    static constexpr double initialScale = 48.0;

    // The name of the body that the view follows, empty if none.
    QString bodyWithCamera() const;
    // A multisampling OpenGL viewport, or null where no working context can be made or the
    // renderer draws in software.
    static QWidget* openGLViewport();
    double scale() const;
    QRectF visibleSceneRect() const;

    // Follows a body from now on, or nothing for null. No signal.
    void setBodyWithCamera(BodyItem* pBodyItem);
    // The view of a new scene: default background, no camera body, the whole scene in sight.
    void reset();
    // Rebuilds the grid with the step of the settings.
    void updateGrid();
    GridGraphicsItem* gridItem() const { return grid; }
    SnapPointGraphicsItem* snapPointItem() const { return snapMarker; }
    // Paint events during the last full second.
    int framesPerSecond() const { return lastFramesPerSecond; }
    // Hands a press to the view's own handling once more, for a tool that has just changed
    // the drag mode in its own press handler.
    void passMousePressEvent(QMouseEvent* event);

    // The viewport as an image, and the same scaled and centre-cropped to an exact size.
    QImage image() const;
    QImage image(const QSize& size) const;

    GraphicsViewAction* currentAction = nullptr;

signals:
    void backgroundChanged(QBrush background);
    void bodyWithCameraChanged(QString bodyWithCamera);
    void scaleChanged(double scale);

public slots:
    void setBackground(QBrush background);
    void setBodyWithCamera(QString bodyItemName);
    void setScale(double scale);
    void setVisibleSceneRect(QRectF visibleSceneRect);
    void zoomExtents();
    void zoomIn();
    void zoomOut();

protected:
    void timerEvent(QTimerEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

private:
    // The status bar of the main window, once start-up has finished.
    StatusBar* mainStatusBar() const;
    // An OpenGL viewport where the settings ask for one and a context can be made.
    void chooseViewport();
    // Multiplies the zoom by 2 to the power `exponent`.
    void zoomBy(double exponent);
    // Wheel edits of the selection by a turn of `delta` eighths of a degree. With Ctrl:
    // bodies grow or shrink, revolute motors speed up or slow down, springs lengthen or
    // shorten; with Shift: bodies turn.
    void adjustSelectedItems(int delta);
    void rotateSelectedBodies(int delta);
    QList<BodyItem*> selectedBodies() const;
    // Runs an item script for each item, as long as the item is still in the world.
    void runKeyScripts(void (PhysicsItem::*run)(QKeyEvent*), QKeyEvent* event);

    // Guarded: a script or an overwritten undo entry may delete the body while it is followed.
    QPointer<BodyItem> cameraBody;
    GridGraphicsItem* grid = nullptr;
    SnapPointGraphicsItem* snapMarker = nullptr;
    QBasicTimer frameTimer;
    int paintCount = 0;
    int lastFramesPerSecond = 0;
};
