// Times saving and loading a scene of 5,000 bodies with 1,000 joints: the document, the
// archive and the reading back, as Application::save and load do them without a window.
#include "BenchmarkApplication.h"
#include "Files/SceneFile.h"
#include "Files/XMLReader.h"
#include "Files/XMLWriter.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    QDir().mkpath(QDir::tempPath() + QDir::separator() + QCoreApplication::applicationName());
    PhysicsWorld* world = PhysicsWorld::instance();
    QList<RectangleItem*> bodies;
    for (int i = 0; i < 5000; ++i)
        bodies << world->createRectangle((i % 100) * 0.5, (i / 100) * 0.5, 0, 0.4, 0.4);
    for (int i = 0; i < 1000; ++i)
        world->createRevoluteJoint(bodies.at(2 * i), bodies.at(2 * i + 1),
                                   QPointF((2 * i % 100) * 0.5 + 0.25, (2 * i / 100) * 0.5));

    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("bench.scene"));
    QImage thumbnail(SceneFile::thumbnailSize, QImage::Format_RGB32);
    thumbnail.fill(Qt::white);

    QElapsedTimer timer;
    timer.start();
    QString document;
    XMLWriter(&document).writeScene(world, nullptr);
    const bool saved = SceneFile(path).save(document, thumbnail);
    const double saveMs = timer.nsecsElapsed() / 1e6;

    world->clear();
    timer.restart();
    QFile file(SceneFile(path).extractScene());
    const bool opened = file.open(QIODevice::ReadOnly);
    XMLReader(&file, nullptr).read();
    file.remove();
    const double loadMs = timer.nsecsElapsed() / 1e6;

    std::printf("save: %.1f ms (%s, %.1f MB document, %.1f MB archive)\n", saveMs,
                saved ? "ok" : "FAILED", document.toUtf8().size() / 1e6,
                QFileInfo(path).size() / 1e6);
    std::printf("load: %.1f ms (%s, %lld bodies, %lld joints)\n", loadMs, opened ? "ok" : "FAILED",
                qint64(world->bodyItems().size()), qint64(world->jointItems().size()));
    return saved && opened ? 0 : 1;
}
