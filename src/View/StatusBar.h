#pragma once

#include <QStatusBar>

class MainWindow;
class QLabel;
class QPointF;

// The strip at the foot of the main window: transient messages on the left, and on the right
// three fixed labels with the view's paint rate and the scene position under the mouse. The
// labels are children of the bar; the view hands in the figures through the setters, and the
// bar keeps them to label them again in another language.
class StatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusBar(MainWindow* parent);

    void setFramesPerSecond(int framesPerSecond);
    // A scene position in metres, shown with three decimals.
    void setScenePosition(const QPointF& position);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showFigures();
    // A permanent label of fixed width.
    QLabel* addFigureLabel(int width);

    QLabel* framesPerSecondLabel;
    QLabel* xLabel;
    QLabel* yLabel;
    // As shown; "?" until the first figure arrives.
    QString framesPerSecond = QStringLiteral("?");
    QString x = QStringLiteral("?");
    QString y = QStringLiteral("?");
};
