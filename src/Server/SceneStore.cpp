#include "SceneStore.h"

#include "DatabaseConnection.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <quazip5/quazip.h>
#include <quazip5/quazipfile.h>

namespace {

const QString sceneMember = QStringLiteral("scene.xml");
const QString thumbnailMember = QStringLiteral("thumbnail.png");
const QString thumbnailSuffix = QStringLiteral(".png");
constexpr int MaxBaseNameLength = 100;
// A thumbnail is a small picture; anything bigger is left out rather than unpacked.
constexpr qint64 MaxThumbnailBytes = 2 * 1024 * 1024;

// Writes through a temporary file renamed into place, so no half file is ever seen there.
bool writeWhole(const QString& path, const QByteArray& data)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit();
}

} // namespace

SceneStore::SceneStore(const QString& dataDirectory, qint64 maxArchiveBytes)
    : filesFolder(QDir(dataDirectory).filePath(QStringLiteral("files")))
    , thumbnailsFolder(QDir(dataDirectory).filePath(QStringLiteral("thumbnails")))
    , databaseFile(QDir(dataDirectory).filePath(QStringLiteral("repository.sqlite")))
    , maxArchiveBytes(maxArchiveBytes)
{
}

bool SceneStore::open()
{
    if (!QDir().mkpath(filesFolder) || !QDir().mkpath(thumbnailsFolder))
        return false;
    DatabaseConnection connection(databaseFile);
    return connection.isOpen()
        && connection
               .run(QStringLiteral("CREATE TABLE IF NOT EXISTS scenes ("
                                   "id INTEGER PRIMARY KEY, stored_name TEXT NOT NULL UNIQUE, "
                                   "original_name TEXT NOT NULL, category INTEGER NOT NULL, "
                                   "description TEXT NOT NULL, keywords TEXT NOT NULL, "
                                   "user TEXT NOT NULL, uploaded TEXT NOT NULL, "
                                   "thumbnail INTEGER NOT NULL)"))
               .isActive();
}

QStringList SceneStore::categoryNames()
{
    // The order is the client's: it sends the index.
    return {QStringLiteral("Bug Report"), QStringLiteral("Educational"),
            QStringLiteral("Mechanisms"), QStringLiteral("Ragdolls"),
            QStringLiteral("Vehicles"),   QStringLiteral("General")};
}

bool SceneStore::isSafeFileName(const QString& fileName, const QString& suffix)
{
    // No separators and no leading dot: the name can only ever mean a file inside its folder.
    const QString base = fileName.chopped(std::min(suffix.size(), fileName.size()));
    return fileName.endsWith(suffix) && !base.isEmpty() && base.front().isLetterOrNumber()
        && std::all_of(base.begin(), base.end(), [](QChar c) {
               return c.isLetterOrNumber() || QStringLiteral(" _-.()").contains(c);
           });
}

QString SceneStore::archiveProblem(const QByteArray& archive, QByteArray& thumbnail)
{
    QBuffer buffer;
    buffer.setData(archive);
    QuaZip zip(&buffer);
    if (!zip.open(QuaZip::mdUnzip))
        return QStringLiteral("The file is not a scene archive.");
    if (!zip.setCurrentFile(sceneMember))
        return QStringLiteral("The archive holds no scene.");
    if (zip.setCurrentFile(thumbnailMember)) {
        QuaZipFile file(&zip);
        if (file.open(QIODevice::ReadOnly)) {
            thumbnail = file.read(MaxThumbnailBytes + 1);
            file.close();
            // A damaged, oversized or foreign picture is dropped; the scene is still good.
            if (file.getZipError() != UNZ_OK || thumbnail.size() > MaxThumbnailBytes
                || !thumbnail.startsWith("\x89PNG\r\n\x1a\n"))
                thumbnail.clear();
        }
    }
    return {};
}

QString SceneStore::uniqueBaseName(const QString& baseName) const
{
    // An archive on disk holds its name even when a crash kept it from being listed.
    QString candidate = baseName;
    for (int number = 2;
         QFile::exists(QDir(filesFolder).filePath(candidate + SceneRecord::sceneSuffix()));
         ++number)
        candidate = QStringLiteral("%1-%2").arg(baseName).arg(number);
    return candidate;
}

QString SceneStore::add(SceneRecord& record, const QByteArray& archive)
{
    const QString& name = record.originalName;
    if (!isSafeFileName(name, SceneRecord::sceneSuffix())
        || name.size() > MaxBaseNameLength + SceneRecord::sceneSuffix().size())
        return QStringLiteral("The file name must be a plain scene name ending in .scene.");
    if (record.category < 0 || record.category >= categoryNames().size())
        return QStringLiteral("Please choose one of the categories.");
    if (archive.size() > maxArchiveBytes)
        return sizeRefusal();
    QByteArray thumbnail;
    const QString problem = archiveProblem(archive, thumbnail);
    if (!problem.isEmpty())
        return problem;

    const QMutexLocker lock(&addition);
    const QString base = uniqueBaseName(name.chopped(SceneRecord::sceneSuffix().size()));
    record.storedName = base + SceneRecord::sceneSuffix();
    record.uploaded = QDateTime::currentDateTimeUtc();
    record.hasThumbnail = !thumbnail.isEmpty();
    const QString archiveFile = QDir(filesFolder).filePath(record.storedName);
    const QString thumbnailFile = QDir(thumbnailsFolder).filePath(base + thumbnailSuffix);
    // The archive first: its name on disk reserves the stored name for this upload.
    bool stored = writeWhole(archiveFile, archive)
        && (!record.hasThumbnail || writeWhole(thumbnailFile, thumbnail));
    if (stored) {
        DatabaseConnection connection(databaseFile);
        stored = connection
                     .run(QStringLiteral("INSERT INTO scenes (stored_name, original_name, "
                                         "category, description, keywords, user, uploaded, "
                                         "thumbnail) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                          {record.storedName, record.originalName, record.category,
                           record.description, record.keywords, record.user,
                           record.uploaded.toString(Qt::ISODate), record.hasThumbnail})
                     .isActive();
    }
    if (!stored) {
        QFile::remove(archiveFile);
        QFile::remove(thumbnailFile);
        return QStringLiteral("The repository could not store the scene. Please try again later.");
    }
    return {};
}

QString SceneStore::sizeRefusal() const
{
    return QStringLiteral("The scene is larger than %1 MB.").arg(maxArchiveBytes / (1024 * 1024));
}

QVector<SceneRecord> SceneStore::newest(int count) const
{
    DatabaseConnection connection(databaseFile);
    QSqlQuery query = connection.run(
        QStringLiteral("SELECT stored_name, original_name, category, description, keywords, "
                       "user, uploaded, thumbnail FROM scenes ORDER BY id DESC LIMIT ?"),
        {count});
    QVector<SceneRecord> scenes;
    while (query.next()) {
        SceneRecord record;
        record.storedName = query.value(0).toString();
        record.originalName = query.value(1).toString();
        record.category = query.value(2).toInt();
        record.description = query.value(3).toString();
        record.keywords = query.value(4).toString();
        record.user = query.value(5).toString();
        record.uploaded = QDateTime::fromString(query.value(6).toString(), Qt::ISODate);
        record.hasThumbnail = query.value(7).toBool();
        scenes.append(record);
    }
    return scenes;
}

QString SceneStore::existingFile(const QString& folder, const QString& fileName,
                                 const QString& suffix)
{
    if (!isSafeFileName(fileName, suffix))
        return {};
    const QString path = QDir(folder).filePath(fileName);
    return QFileInfo(path).isFile() ? path : QString();
}

QString SceneStore::archivePath(const QString& fileName) const
{
    return existingFile(filesFolder, fileName, SceneRecord::sceneSuffix());
}

QString SceneStore::thumbnailPath(const QString& fileName) const
{
    return existingFile(thumbnailsFolder, fileName, thumbnailSuffix);
}
