#include "NemuToolbox/Toolbox.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTextCodec>

namespace Nemu {
namespace Toolbox {

bool removeDirectory(const QString& path)
{
    return QDir(path).removeRecursively();
}

QString readAll(const QString& fileName, const QString& encoding)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QTextCodec* codec = QTextCodec::codecForName(encoding.toLatin1());
    const QByteArray data = file.readAll();
    return codec ? codec->toUnicode(data) : QString::fromUtf8(data);
}

// Saturation and value stay high: a new body stands out from the background, and its colour
// is never black, the colour of a textured static body's brush until it is given one of these.
QColor randomColor()
{
    QRandomGenerator* generator = QRandomGenerator::global();
    return QColor::fromHsv(generator->bounded(360), generator->bounded(128, 256),
                           generator->bounded(160, 256));
}

QBrush randomBrush()
{
    return QBrush(randomColor(), Qt::SolidPattern);
}

} // namespace Toolbox
} // namespace Nemu
