#pragma once

#include <QPointer>
#include <qwt_plot.h>

class BodyItem;
class PhysicsWorld;
class PlotSamples;
class QwtPlotCurve;
class QwtPlotDirectPainter;

// A floating window that plots the speed of one body, and its change from step to step,
// against the world's time, a sample at each step for as long as it is open. A step costs the
// same at minute ten as at second one: the samples grow in place, a step draws only its new
// piece of each curve, and the axes widen by doubling, so the whole plot is drawn again only
// now and then. Closes itself at the first step after its body has left the world.
class PlotWidget : public QwtPlot
{
    Q_OBJECT

public:
    PlotWidget(BodyItem* item, PhysicsWorld* world, QWidget* parent = nullptr);

    // (seconds, metres per second) and (seconds, change of speed since the last step).
    QVector<QPointF> speedSamples() const;
    QVector<QPointF> accelerationSamples() const;

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void updatePlot();

private:
    void retranslate();

    // An axis's bounds as set here; the plot's own are only known after a replot.
    struct Range
    {
        double lower;
        double upper;
    };

    // Widens an axis to hold a value, doubling its span as often as needed; whether it did.
    bool widen(QwtPlot::Axis axis, Range& range, double value);

    QPointer<BodyItem> body;
    PhysicsWorld* world;
    QwtPlotCurve* speedCurve;
    QwtPlotCurve* accelerationCurve;
    PlotSamples* speeds;
    PlotSamples* accelerations;
    QwtPlotDirectPainter* directPainter;
    Range timeRange;
    Range valueRange;
};
