// The frame as users see it: the program's own main window, offscreen at 1280 by 800 with its
// panels, with 1,000 and then 2,000 bodies falling into the box of a new scene. Each frame is one
// step of the world and one repaint of the view, timed together for 600 frames; the median and the
// 95th percentile are printed. At 60 frames a second a frame has 16.7 ms.
#include "Application/Application.h"
#include "Application/Settings.h"
#include "BoxOfBodies.h"
#include "Gui/MainWindow.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsView.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
const int frameCount = 600;

void runFrames(GraphicsView* view, int bodyCount)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    world->removeAllDynamicBodies();
    fillBox(world, bodyCount);
    view->zoomExtents();
    std::vector<double> frames;
    QElapsedTimer timer;
    for (int i = 0; i < frameCount; ++i) {
        timer.start();
        world->step();
        view->viewport()->repaint();
        frames.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(frames.begin(), frames.end());
    std::printf("frame N=%d median_ms=%.2f p95_ms=%.2f (%dx%d, %d frames)\n", bodyCount,
                frames[frames.size() / 2], frames[frames.size() * 95 / 100],
                view->viewport()->width(), view->viewport()->height(), frameCount);
    std::fflush(stdout);
}
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int result = 0;
    {
        Application application(argc, argv);
        // Default settings, and no settings file left behind.
        QFile::remove(Settings::settingsFileName());
        Settings::instance()->showTipsAtStartup = false;
        application.initialise();
        // Start-up finishes in the event loop with the first new scene, which has the box.
        QTimer::singleShot(500, &application, &QCoreApplication::quit);
        result = application.exec();
        MainWindow* window = application.mainWindow;
        window->showNormal();
        window->resize(1280, 800);
        QCoreApplication::processEvents();
        for (int bodyCount : {1000, 2000})
            runFrames(window->graphicsView(), bodyCount);
        QFile::remove(Settings::settingsFileName());
    }
    return result;
}
