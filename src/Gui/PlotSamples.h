#pragma once

#include <qwt_series_data.h>

// The points of a plot curve, grown in place: adding one costs the same however many there
// are, since the bounding rectangle grows with them instead of being measured anew.
class PlotSamples : public QwtArraySeriesData<QPointF>
{
public:
    void append(const QPointF& sample);
    QRectF boundingRect() const override { return bounds; }

private:
    QRectF bounds {0.0, 0.0, -1.0, -1.0};
};
