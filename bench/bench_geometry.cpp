// Times of triangulation and clipping for large outlines, and of a body made of one. A
// 10,000-vertex outline is to triangulate in well under 100 ms; a body of 1,000 random points,
// some 90,000 triangles, is to be made in under a second. Also cutting bodies: an erase across
// a 500-vertex body, and an explosion into 1,000 triangles, plain and textured.
#include "BenchmarkApplication.h"
#include "Commands/EraseCommand.h"
#include "Commands/TriangulateCommand.h"
#include "General/PolygonClipper.h"
#include "General/XPolygonF.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"

#include <QPainterPath>
#include <QRandomGenerator>
#include <QtGlobal>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

// A star of vertexCount vertices alternately at the outer and the inner radius.
QPolygonF star(int vertexCount, double outer, double inner, QPointF centre = QPointF())
{
    QPolygonF polygon;
    polygon.reserve(vertexCount);
    for (int i = 0; i < vertexCount; ++i) {
        const double angle = 2 * M_PI * i / vertexCount;
        const double radius = i % 2 ? inner : outer;
        polygon << centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    return polygon;
}

QPolygonF circle(int vertexCount, double radius, QPointF centre)
{
    return star(vertexCount, radius, radius, centre);
}

// A square carrying 50 round holes in a grid of 10 by 5, cut into the outline as boolean
// operations leave them, with about vertexCount vertices in all.
QPolygonF squareWithHoles(int vertexCount)
{
    constexpr int holes = 50;
    QPainterPath path;
    path.addRect(0, 0, 20, 10);
    for (int i = 0; i < holes; ++i) {
        const QPointF centre(1 + 2 * (i % 10), 1 + 2 * (i / 10));
        QPainterPath hole;
        hole.addPolygon(circle(qMax(3, vertexCount / holes), 0.5, centre));
        path = path.subtracted(hole);
    }
    return path.toFillPolygon();
}

void triangulateStar(benchmark::State& state)
{
    const XPolygonF outline(star(int(state.range(0)), 10, 5));
    for (auto _ : state)
        benchmark::DoNotOptimize(outline.triangulate());
    state.counters["vertices"] = outline.size();
}

void triangulateWithHoles(benchmark::State& state)
{
    const XPolygonF outline(squareWithHoles(int(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(outline.triangulate());
    state.counters["vertices"] = outline.size();
}

// Two overlapping outlines of 5,000 vertices: round ones give a few pieces; jagged ones with
// interleaving spikes give some 15,000 pieces, or for the union one outline with as many holes.
void clipStars(benchmark::State& state, double inner)
{
    constexpr int vertexCount = 5000;
    const QPolygonF subject = star(vertexCount, 10, inner);
    const QPolygonF clip = star(vertexCount, 10, inner, QPointF(3, 1));
    const auto operation = ClipperLib::ClipType(state.range(0));
    int pieces = 0;
    for (auto _ : state)
        pieces = PolygonClipper().clip(operation, subject, clip).size();
    state.counters["pieces"] = pieces;
}

void clipRound(benchmark::State& state)
{
    clipStars(state, 10);
}

void clipJagged(benchmark::State& state)
{
    clipStars(state, 8);
}

// Making a body of pointCount random points in a 20 m square: an outline that crosses itself
// all over, as scribbles, text and pictures give, with a fixture for each of its many
// triangles.
void polygonBody(benchmark::State& state)
{
    QRandomGenerator random(7);
    QPolygonF points;
    for (int i = 0; i < state.range(0); ++i)
        points << QPointF(random.bounded(20.0), random.bounded(20.0));
    PhysicsWorld* world = PhysicsWorld::instance();
    int fixtures = 0;
    for (auto _ : state) {
        PolygonItem* body = world->createPolygon(points);
        fixtures = body->shapeCount();
        state.PauseTiming();
        world->removeBody(body);
        state.ResumeTiming();
    }
    state.counters["fixtures"] = fixtures;
}

// Times the making of a command, not its deletion, which takes its pieces away again.
template<typename Make> void timeCommand(benchmark::State& state, Make make)
{
    int pieces = 0;
    for (auto _ : state) {
        ComplexCommand* command = make();
        pieces = command->items().size();
        state.PauseTiming();
        delete command;
        state.ResumeTiming();
    }
    state.counters["pieces"] = pieces;
}

// A stroke across the middle of a round body of 500 vertices, 10 m across: two pieces.
void eraseBody(benchmark::State& state)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    PolygonItem* body = world->createPolygon(circle(500, 5, QPointF()));
    const QPolygonF stroke(QRectF(-0.1, -6, 0.2, 12));
    timeCommand(state, [&stroke] { return new EraseCommand(stroke); });
    world->removeBody(body);
}

// A round body of 1,002 vertices exploded into its 1,000 triangles; with range 1 the body is
// textured, and each piece takes its picture from one render of the scene.
void explodeTriangles(benchmark::State& state)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    PolygonItem* body = world->createPolygon(circle(1002, 5, QPointF()));
    if (state.range(0)) {
        QImage texture(64, 64, QImage::Format_RGB32);
        texture.fill(Qt::darkYellow);
        QBrush brush {QPixmap::fromImage(texture)};
        brush.setTransform(QTransform(0.02, 0, 0, -0.02, 0, 0));
        body->setBrush(brush);
    }
    timeCommand(state, [body] { return new TriangulateCommand(body); });
    world->removeBody(body);
}

} // namespace

BENCHMARK(eraseBody)->Unit(benchmark::kMillisecond);
BENCHMARK(explodeTriangles)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(polygonBody)->Arg(300)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(triangulateStar)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(triangulateWithHoles)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(clipRound)
    ->Arg(ClipperLib::ctIntersection)
    ->Arg(ClipperLib::ctUnion)
    ->Arg(ClipperLib::ctDifference)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(clipJagged)
    ->Arg(ClipperLib::ctIntersection)
    ->Arg(ClipperLib::ctUnion)
    ->Arg(ClipperLib::ctDifference)
    ->Unit(benchmark::kMillisecond);

// Fine outlines have thin triangles that are skipped with a warning on every run; the log
// lines would bury the figures.
int main(int argc, char** argv)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    BenchmarkApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
