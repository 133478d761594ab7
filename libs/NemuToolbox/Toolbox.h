#pragma once

#include <QBrush>
#include <QColor>
#include <QString>

// Small program-independent helpers: files and directories, random colours and brushes.
namespace Nemu {
namespace Toolbox {

// Removes a directory with everything in it; true on success.
bool removeDirectory(const QString& path);

// The whole content of a file (a resource path too) decoded with the named codec, such as
// "UTF-8". An unreadable file gives an empty string.
QString readAll(const QString& fileName, const QString& encoding);

// A bright, saturated colour of random hue, different from call to call.
QColor randomColor();

// A solid brush of randomColor().
QBrush randomBrush();

} // namespace Toolbox
} // namespace Nemu
