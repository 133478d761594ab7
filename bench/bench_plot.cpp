// The cost of one step of a plot window after a second and after ten minutes of samples at
// 60 steps a second: a step adds two samples and draws only its new piece of each curve, so
// the two figures are to be the same.
#include "BenchmarkApplication.h"
#include "Gui/PlotWidget.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <benchmark/benchmark.h>

namespace {
const double stepSeconds = 1.0 / 60.0;

void plotStep(benchmark::State& state)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    world->setSeconds(0.0);
    RectangleItem* body = world->createRectangle(0, 0, 0, 1, 1);
    body->setLinearVelocity(1.0, 0.0);
    auto* plot = new PlotWidget(body, world);
    plot->show();
    // The samples of the run so far; a steady speed keeps the axes as they are.
    for (int64_t i = 0; i < state.range(0); ++i) {
        world->setSeconds(world->seconds() + stepSeconds);
        emit world->stepFinished();
    }
    for (auto _ : state) {
        world->setSeconds(world->seconds() + stepSeconds);
        emit world->stepFinished();
    }
    state.counters["samples"] = plot->speedSamples().size();
    delete plot;
    world->removeBody(body);
}
} // namespace

BENCHMARK(plotStep)->Arg(60)->Arg(36000)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    BenchmarkApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
