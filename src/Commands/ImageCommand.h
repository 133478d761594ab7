#pragma once

#include "Commands/ComplexCommand.h"

#include <QPolygonF>

// Stamps a picture as polygon bodies: one per separate opaque region of the picture, thinned
// out to points `polygonThreshold` metres apart, all painted with the picture. `scale` is
// metres per pixel; (x, y) is where the picture's top left corner goes. A file that does not
// load makes nothing.
class ImageCommand : public ComplexCommand
{
public:
    // `theta` is taken for a turned stamp to come, and not used.
    ImageCommand(double x, double y, double theta, const QString& filename, double polygonThreshold,
                 double scale, QUndoCommand* parent = nullptr);

    // Keeps a point and passes over the points closer to it than `distance`, and the first one
    // that is not; the last point of the input is never kept.
    static QPolygonF decimate(const QPolygonF& polygon, double distance);
};
