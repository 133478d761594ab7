#include "View/StatusBar.h"

#include "Gui/MainWindow.h"

#include <QLabel>
#include <QPointF>

StatusBar::StatusBar(MainWindow* parent)
    : QStatusBar(parent)
    , framesPerSecondLabel(addFigureLabel(&StatusBar::framesPerSecondText, 70))
    , xLabel(addFigureLabel(&StatusBar::xText, 80))
    , yLabel(addFigureLabel(&StatusBar::yText, 80))
{
}

void StatusBar::setFramesPerSecond(int framesPerSecond)
{
    framesPerSecondLabel->setText(framesPerSecondText(QString::number(framesPerSecond)));
}

void StatusBar::setScenePosition(const QPointF& position)
{
    xLabel->setText(xText(QString::number(position.x(), 'f', 3)));
    yLabel->setText(yText(QString::number(position.y(), 'f', 3)));
}

QString StatusBar::framesPerSecondText(const QString& value)
{
    return tr("<B>FPS</B>: %1").arg(value);
}

QString StatusBar::xText(const QString& value)
{
    return tr("<B>X</B>: %1").arg(value);
}

QString StatusBar::yText(const QString& value)
{
    return tr("<B>Y</B>: %1").arg(value);
}

QLabel* StatusBar::addFigureLabel(QString (*text)(const QString&), int width)
{
    auto* label = new QLabel(text(QStringLiteral("?")), this);
    label->setFixedWidth(width);
    addPermanentWidget(label, 0);
    return label;
}
