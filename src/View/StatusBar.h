#pragma once

#include <QStatusBar>

class MainWindow;
class QLabel;
class QPointF;

// The strip at the foot of the main window: transient messages on the left, and on the right
// three fixed labels with the view's paint rate and the scene position under the mouse. The
// labels are children of the bar; the view hands in the figures through the setters.
class StatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusBar(MainWindow* parent);

    void setFramesPerSecond(int framesPerSecond);
    // A scene position in metres, shown with three decimals.
    void setScenePosition(const QPointF& position);

private:
    static QString framesPerSecondText(const QString& value);
    static QString xText(const QString& value);
    static QString yText(const QString& value);
    // A permanent label of fixed width, reading "?" until the first figure arrives.
    QLabel* addFigureLabel(QString (*text)(const QString&), int width);

    QLabel* framesPerSecondLabel;
    QLabel* xLabel;
    QLabel* yLabel;
};
