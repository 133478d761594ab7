#pragma once

#include "View/GraphicsView.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QTest>

// Drives a view with synthesized mouse events at scene points, as a hand on the mouse would.
// Positions go through whole viewport pixels, so a tool sees onPixel(p) where a test gave p.
class ViewGestures
{
public:
    explicit ViewGestures(GraphicsView* view)
        : view(view)
    {
    }

    QPoint pixel(const QPointF& scenePoint) const { return view->mapFromScene(scenePoint); }
    // The scene point that a tool sees for a scene point, once it has become a pixel.
    QPointF onPixel(const QPointF& scenePoint) const { return view->mapToScene(pixel(scenePoint)); }

    void press(const QPointF& scenePoint, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mousePress(view->viewport(), button, modifiers, pixel(scenePoint));
    }
    void release(const QPointF& scenePoint, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseRelease(view->viewport(), button, modifiers, pixel(scenePoint));
    }
    // QTest moves carry no buttons, so a move with buttons held is sent by hand.
    void move(const QPointF& scenePoint, Qt::MouseButtons buttons = Qt::NoButton) const
    {
        QMouseEvent event(QEvent::MouseMove, pixel(scenePoint), Qt::NoButton, buttons,
                          QGuiApplication::keyboardModifiers());
        QApplication::sendEvent(view->viewport(), &event);
    }
    void click(const QPointF& scenePoint, Qt::MouseButton button = Qt::LeftButton) const
    {
        press(scenePoint, button);
        release(scenePoint, button);
    }
    // Press, a few moves with the left button held, the last on `to`; no release.
    void pressAndDrag(const QPointF& from, const QPointF& to) const
    {
        press(from);
        const int steps = 4;
        for (int i = 1; i <= steps; ++i)
            move(from + (to - from) * i / steps, Qt::LeftButton);
    }
    void drag(const QPointF& from, const QPointF& to) const
    {
        pressAndDrag(from, to);
        release(to);
    }

private:
    GraphicsView* view;
};
