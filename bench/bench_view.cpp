// Time of one full repaint of the view, rendered into an image of 1280 by 800 pixels, with
// 1,000 bodies standing in the box of a new scene.
#include "Application/Settings.h"
#include "BenchmarkApplication.h"
#include "BoxOfBodies.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsView.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace {
const int bodyCount = 1000;
const int rounds = 20;
} // namespace

int main(int argc, char* argv[])
{
    BenchmarkApplication application(argc, argv);
    // The image is painted by the raster engine whatever the viewport; the field is set
    // without its setter so that no settings file is written beside the benchmark.
    Settings::instance()->useOpenGL = false;

    PhysicsWorld* world = PhysicsWorld::instance();
    world->createGround();
    fillBox(world, bodyCount);
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
