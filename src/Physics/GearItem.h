#pragma once

#include <QList>
#include <QPolygonF>

// The teeth of a gear in body coordinates, one four-point polygon each in tooth order. The
// tooth count divisor is the arc length of the pitch circle that one tooth takes up, so the
// greater it is, the fewer teeth; a tooth takes three quarters of its step, the gap the rest.
QList<QPolygonF> gearTeeth(double pitchCircleRadius, double toothSize, double toothCountDivisor);
// The points of all teeth one after the other: the outline that a gear shows.
QPolygonF gearOutline(double pitchCircleRadius, double toothSize, double toothCountDivisor);
