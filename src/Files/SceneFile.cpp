#include "Files/SceneFile.h"

#include "Application/Application.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRandomGenerator>
#include <cstdio>
#include <quazip5/JlCompress.h>

const QString SceneFile::extension = QStringLiteral("scene");
const QSize SceneFile::thumbnailSize(160, 120);

namespace {
const QString sceneMember = QStringLiteral("scene.xml");
const QString thumbnailMember = QStringLiteral("thumbnail.png");

// Beyond any scene's document or thumbnail; an archive that claims more is not unpacked.
const qint64 maximumSceneBytes = 512LL * 1024 * 1024;
const qint64 maximumThumbnailBytes = 16LL * 1024 * 1024;
const int maximumThumbnailSide = 4096;

bool writeUtf8(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray bytes = text.toUtf8();
    return file.write(bytes) == bytes.size() && file.flush();
}

// A file of a name no other file has, beside the target, made with the usual permissions.
QString createPartFile(const QString& target)
{
    for (int attempt = 0; attempt < 16; ++attempt) {
        const QString name
            = QStringLiteral("%1.%2.part")
                  .arg(target)
                  .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
        QFile file(name);
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return name;
        if (!QFileInfo(target).absoluteDir().exists())
            break;
    }
    return QString();
}

// Replaces the target in one step, as the file system renames.
bool replaceFile(const QString& source, const QString& target)
{
    const QFileInfo old(target);
    if (old.exists() && !old.isDir())
        QFile::setPermissions(source, old.permissions());
    return std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData())
        == 0;
}
} // namespace

SceneFile::SceneFile(const QString& fileName)
    : archive(fileName)
    , temporaryDirectory(Application::temporaryDirectory())
{
}

QString SceneFile::temporaryPath(const QString& member) const
{
    return temporaryDirectory + QDir::separator() + member;
}

bool SceneFile::save(const QString& sceneXml, const QImage& thumbnail)
{
    // Another instance of the program empties the shared directory when it starts.
    QDir().mkpath(temporaryDirectory);
    const QString xmlPath = temporaryPath(sceneMember);
    const QString thumbnailPath = temporaryPath(thumbnailMember);
    bool saved = writeUtf8(xmlPath, sceneXml) && thumbnail.save(thumbnailPath, "PNG");
    if (saved) {
        const QString part = createPartFile(archive);
        saved = !part.isEmpty()
            && JlCompress::compressFiles(part, QStringList() << xmlPath << thumbnailPath)
            && replaceFile(part, archive);
        if (!saved && !part.isEmpty())
            QFile::remove(part);
    }
    QFile::remove(xmlPath);
    QFile::remove(thumbnailPath);
    return saved;
}

QString SceneFile::extract(const QString& member, qint64 maximumBytes)
{
    {
        QuaZip zip(archive);
        QuaZipFileInfo64 info;
        if (!QFileInfo(archive).isFile() || !zip.open(QuaZip::mdUnzip)
            || !zip.setCurrentFile(member, QuaZip::csSensitive) || !zip.getCurrentFileInfo(&info)
            || info.uncompressedSize > quint64(maximumBytes))
            return QString();
    }
    QDir().mkpath(temporaryDirectory);
    const QString path = temporaryPath(member);
    const QString extracted = JlCompress::extractFile(archive, member, path);
    if (extracted.isEmpty())
        QFile::remove(path);
    return extracted;
}

QString SceneFile::extractScene()
{
    return extract(sceneMember, maximumSceneBytes);
}

QImage SceneFile::thumbnail()
{
    const QString path = extract(thumbnailMember, maximumThumbnailBytes);
    if (path.isEmpty())
        return QImage();
    QImage image;
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isValid() && size.width() <= maximumThumbnailSide
        && size.height() <= maximumThumbnailSide)
        image = reader.read();
    QFile::remove(path);
    return image;
}
