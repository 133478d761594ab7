#pragma once

#include <QGraphicsView>
#include <QPointer>

class BodyItem;

// A small tool window that follows one body through the scene at a fixed 20 pixels per metre,
// without the main view's tools, zoom or overlays. It closes itself, and is deleted, at the
// first paint after its body has left the world.
class CameraGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr double pixelsPerMetre = 20.0;
    static const int minimumSide = 200; // pixels
    static const int maximumSide = 800; // pixels

    CameraGraphicsView(BodyItem* pItem, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QPointer<BodyItem> body;
};
