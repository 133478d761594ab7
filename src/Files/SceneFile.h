#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// A scene archive: a zip file that holds the scene document and its thumbnail, at the root
// and in that order. Its members pass through the program's temporary directory, which is
// left without them after every operation. Made on the stack for one operation.
class SceneFile
{
public:
    // File suffix of scene archives, without the dot.
    static const QString extension;
    // The size of every thumbnail, in pixels.
    static const QSize thumbnailSize;

    explicit SceneFile(const QString& fileName);
    virtual ~SceneFile() = default;

    // Writes the archive beside the target under a passing name and renames it over the
    // target only when it is complete, so that a failed save leaves the old file as it was.
    bool save(const QString& sceneXml, const QImage& thumbnail);
    // The path of the extracted document in the temporary directory, empty if there is none;
    // the caller removes the file.
    QString extractScene();
    // The archive's thumbnail, a null image if it has none.
    QImage thumbnail();

private:
    // Extracts a member of no more than `maximumBytes` into the temporary directory.
    QString extract(const QString& member, qint64 maximumBytes);
    QString temporaryPath(const QString& member) const;

    QString archive;
    QString temporaryDirectory;
};
