#pragma once

#include <QDateTime>
#include <QMutex>
#include <QString>
#include <QVector>

// What the repository knows of one uploaded scene.
struct SceneRecord
{
    QString storedName; // file name under files/, e.g. "bridge-2.scene"
    QString originalName; // the name it was uploaded with, e.g. "bridge.scene"
    int category = 0;
    QString description;
    QString keywords;
    QString user;
    QDateTime uploaded; // UTC
    bool hasThumbnail = false;

    QString baseName() const { return storedName.chopped(sceneSuffix().size()); }
    static QString sceneSuffix() { return QStringLiteral(".scene"); }
};

// The uploaded scene archives under <data>/files, their thumbnails under <data>/thumbnails and
// their metadata in the SQLite file <data>/repository.sqlite. It checks what it is given before
// it stores anything, and a scene is listed only once its archive is complete on disk.
class SceneStore
{
public:
    SceneStore(const QString& dataDirectory, qint64 maxArchiveBytes);

    // Creates the folders and the table if needed; false when they cannot be made.
    bool open();

    // Stores the archive under record.originalName, or a numbered variant of it when that is
    // taken, and fills in the stored name, time and thumbnail. Returns an empty string on
    // success, else the reason for the uploader.
    QString add(SceneRecord& record, const QByteArray& archive);

    // Why an archive over the size limit is refused.
    QString sizeRefusal() const;

    // The newest scenes first, at most count of them.
    QVector<SceneRecord> newest(int count) const;

    // The file behind a requested name, or an empty string for anything but a safe name of
    // an existing file.
    QString archivePath(const QString& fileName) const;
    QString thumbnailPath(const QString& fileName) const;

    static QStringList categoryNames();

private:
    static bool isSafeFileName(const QString& fileName, const QString& suffix);
    static QString archiveProblem(const QByteArray& archive, QByteArray& thumbnail);
    static QString existingFile(const QString& folder, const QString& fileName,
                                const QString& suffix);
    QString uniqueBaseName(const QString& baseName) const;

    QString filesFolder;
    QString thumbnailsFolder;
    QString databaseFile;
    qint64 maxArchiveBytes;
    // Choosing a free name and taking it must not interleave between two uploads.
    QMutex addition;
};
