#include "View/StatusBar.h"

#include "Gui/MainWindow.h"

#include <QEvent>
#include <QLabel>
#include <QPointF>

StatusBar::StatusBar(MainWindow* parent)
    : QStatusBar(parent)
    , framesPerSecondLabel(addFigureLabel(70))
    , xLabel(addFigureLabel(80))
    , yLabel(addFigureLabel(80))
{
    showFigures();
}

void StatusBar::setFramesPerSecond(int framesPerSecond)
{
    this->framesPerSecond = QString::number(framesPerSecond);
    showFigures();
}

void StatusBar::setScenePosition(const QPointF& position)
{
    x = QString::number(position.x(), 'f', 3);
    y = QString::number(position.y(), 'f', 3);
    showFigures();
}

void StatusBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showFigures();
    QStatusBar::changeEvent(event);
}

void StatusBar::showFigures()
{
    framesPerSecondLabel->setText(tr("<B>FPS</B>: %1").arg(framesPerSecond));
    xLabel->setText(tr("<B>X</B>: %1").arg(x));
    yLabel->setText(tr("<B>Y</B>: %1").arg(y));
}

QLabel* StatusBar::addFigureLabel(int width)
{
    auto* label = new QLabel(this);
    label->setFixedWidth(width);
    addPermanentWidget(label, 0);
    return label;
}
