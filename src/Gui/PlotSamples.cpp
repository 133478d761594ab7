#include "Gui/PlotSamples.h"

void PlotSamples::append(const QPointF& sample)
{
    if (d_samples.isEmpty()) {
        bounds = QRectF(sample, QSizeF(0.0, 0.0));
    } else {
        bounds.setLeft(std::min(bounds.left(), sample.x()));
        bounds.setRight(std::max(bounds.right(), sample.x()));
        bounds.setTop(std::min(bounds.top(), sample.y()));
        bounds.setBottom(std::max(bounds.bottom(), sample.y()));
    }
    d_samples.append(sample);
}
