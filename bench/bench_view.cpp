// Time of one full repaint of the view, rendered into an image of 1280 by 800 pixels, with
// 1,000 bodies standing in the box of a new scene.
#include "Application/Settings.h"
#include "BenchmarkApplication.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsView.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace {
const int bodyCount = 1000;
const int columns = 40;
const int rounds = 20;

// Rectangles and circles in turn, on a grid inside the walls and below the box's top.
void fillBox(PhysicsWorld* world)
{
    const double left = -9.5;
    const double width = 19.0;
    const double spacing = width / columns;
    const double size = spacing * 0.8;
    for (int i = 0; i < bodyCount; ++i) {
        const double x = left + spacing * (i % columns + 0.5);
        const double y = 0.5 + spacing * (i / columns);
        if (i % 2)
            world->createCircle(x, y, 0.0, size / 2);
        else
            world->createRectangle(x, y, 0.0, size, size);
    }
}
} // namespace

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    // The image is painted by the raster engine whatever the viewport; the field is set
    // without its setter so that no settings file is written beside the benchmark.
    Settings::instance()->useOpenGL = false;

    PhysicsWorld* world = PhysicsWorld::instance();
    world->createGround();
    fillBox(world);
    {
        GraphicsView view;
        view.resize(1280, 800);
        view.show();
        QCoreApplication::processEvents();
        view.zoomExtents();
        view.image(); // warm-up: glyph and pixmap caches

        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < rounds; ++i)
            view.image();
        const double milliseconds = timer.nsecsElapsed() / 1e6 / rounds;
        QTextStream(stdout) << "repaint N=" << bodyCount
                            << " ms=" << QString::number(milliseconds, 'f', 2) << " ("
                            << view.viewport()->width() << "x" << view.viewport()->height()
                            << ", mean of " << rounds << ")\n";
    }
    PhysicsWorld::destroy();
    return 0;
}
