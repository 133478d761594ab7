#pragma once

#include <QColor>
#include <QString>

// How the console shows one kind of message: the colour of its text and its icon.
struct ConsoleMessageStyle
{
    QColor color;
    QString iconPath;
};
