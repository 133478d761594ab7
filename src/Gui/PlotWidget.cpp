#include "Gui/PlotWidget.h"

#include "Gui/PlotSamples.h"
#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"

#include <QEvent>
#include <QPen>
#include <cmath>
#include <qwt_legend.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_directpainter.h>
#include <qwt_plot_grid.h>

namespace {
QPen gridPen(const QColor& colour)
{
    return QPen(colour, 0.0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin);
}

// Pixels: room for the titles and a readable curve.
const QSize startSize(480, 320);
// Axes start this wide, in seconds and in metres per second.
const double firstTimeSpan = 1.0;
const double firstSpeedSpan = 1.0;
} // namespace

PlotWidget::PlotWidget(BodyItem* item, PhysicsWorld* world, QWidget* parent)
    : QwtPlot(QwtText(item->name()), parent)
    , body(item)
    , world(world)
    , speedCurve(new QwtPlotCurve())
    , accelerationCurve(new QwtPlotCurve())
    , speeds(new PlotSamples())
    , accelerations(new PlotSamples())
    , directPainter(new QwtPlotDirectPainter(this))
    , timeRange({world->seconds(), world->seconds() + firstTimeSpan})
    , valueRange({0.0, firstSpeedSpan})
{
    auto* legend = new QwtLegend();
    legend->setFrameStyle(QFrame::Box | QFrame::Sunken);
    insertLegend(legend, QwtPlot::BottomLegend, -1.0);
    auto* grid = new QwtPlotGrid();
    grid->enableXMin(true);
    grid->setMajorPen(gridPen(Qt::white));
    grid->setMinorPen(gridPen(Qt::gray));
    grid->attach(this);
    retranslate();
    // The curves own their samples.
    speedCurve->setPen(QPen(Qt::red));
    speedCurve->setData(speeds);
    speedCurve->attach(this);
    accelerationCurve->setPen(QPen(Qt::blue));
    accelerationCurve->setData(accelerations);
    accelerationCurve->attach(this);
    setAxisScale(QwtPlot::xBottom, timeRange.lower, timeRange.upper);
    setAxisScale(QwtPlot::yLeft, valueRange.lower, valueRange.upper);
    resize(startSize);
    connect(world, &PhysicsWorld::stepFinished, this, &PlotWidget::updatePlot);
}

void PlotWidget::retranslate()
{
    speedCurve->setTitle(tr("Speed"));
    accelerationCurve->setTitle(tr("Acceleration"));
    setAxisTitle(QwtPlot::xBottom, tr("Time (sec)"));
    setAxisTitle(QwtPlot::yLeft, tr("Speed (m/sec)"));
}

void PlotWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QwtPlot::changeEvent(event);
}

QVector<QPointF> PlotWidget::speedSamples() const
{
    return speeds->samples();
}

QVector<QPointF> PlotWidget::accelerationSamples() const
{
    return accelerations->samples();
}

bool PlotWidget::widen(QwtPlot::Axis axis, Range& range, double value)
{
    if (!std::isfinite(value) || (value >= range.lower && value <= range.upper))
        return false;
    if (axis == QwtPlot::xBottom && value < range.lower) {
        // The world's time went back: the axis starts afresh there.
        range = {value, value + firstTimeSpan};
    } else {
        while (value > range.upper)
            range.upper = range.lower + 2.0 * (range.upper - range.lower);
        while (value < range.lower)
            range.lower = range.upper - 2.0 * (range.upper - range.lower);
    }
    setAxisScale(axis, range.lower, range.upper);
    return true;
}

void PlotWidget::updatePlot()
{
    if (!body || !body->isActive()) {
        close();
        return;
    }
    const double time = world->seconds();
    const b2Vec2 velocity = body->body()->GetLinearVelocity();
    const double speed
        = std::sqrt(double(velocity.x) * velocity.x + double(velocity.y) * velocity.y);
    const double acceleration
        = speeds->size() == 0 ? speed : speed - speeds->sample(speeds->size() - 1).y();
    speeds->append(QPointF(time, speed));
    accelerations->append(QPointF(time, acceleration));
    // Both are asked, so that every axis holds its value.
    const bool widened = widen(QwtPlot::xBottom, timeRange, time)
        | widen(QwtPlot::yLeft, valueRange, speed)
        | widen(QwtPlot::yLeft, valueRange, acceleration);
    if (widened) {
        replot();
        return;
    }
    const int last = int(speeds->size()) - 1;
    directPainter->drawSeries(speedCurve, std::max(0, last - 1), last);
    directPainter->drawSeries(accelerationCurve, std::max(0, last - 1), last);
}
