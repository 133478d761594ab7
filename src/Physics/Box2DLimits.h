#pragma once

#include <QLineF>
#include <QPointF>
#include <QPolygonF>
#include <cmath>

// The values that the program hands to Box2D, by kind. Box2D keeps single-precision floats;
// a value that is not finite or that a float cannot hold makes it assert or spread NaN
// through the whole world, and so does a shape too small for its mass to be computed.
// Scripts and scene files can give anything, so every setter and factory asks here whether
// its value is of its kind and leaves the item as it was if not. The limits lie far beyond
// any scene a person builds, and near enough that the solver's products of them stay within
// a float. A NaN or an infinity is outside every range.
class Box2DLimits
{
public:
    // Metres: positions, anchors, points of outlines and lines, lengths and translations.
    static constexpr double maximumCoordinate = 1.0e6;
    // Metres: the smallest side or radius of a shape. Box2D asserts on shapes whose area
    // is near its float epsilon.
    static constexpr double minimumSize = 1.0e-3;
    // kg/m²: a positive density below the minimum makes a mass whose inverse a float cannot
    // hold.
    static constexpr double minimumDensity = 1.0e-6;
    static constexpr double maximumDensity = 1.0e6;
    // Friction, restitution, damping and damping ratios: none is negative.
    static constexpr double maximumCoefficient = 1.0e3;
    // Hertz: a spring's stiffness grows with the square of its frequency.
    static constexpr double maximumFrequency = 1.0e3;
    // Everything else: velocities, forces, impulses, torques, accelerations, stiffnesses and
    // angles, in the program's units.
    static constexpr double maximumMagnitude = 1.0e9;

    static bool isCoordinate(double metres) { return within(metres, maximumCoordinate); }
    static bool isPoint(const QPointF& point)
    {
        return isCoordinate(point.x()) && isCoordinate(point.y());
    }
    static bool isLine(const QLineF& line) { return isPoint(line.p1()) && isPoint(line.p2()); }
    // Where a body stands: metres, and theta in radians.
    static bool isPose(double x, double y, double theta)
    {
        return isCoordinate(x) && isCoordinate(y) && isMagnitude(theta);
    }
    static bool isPolygon(const QPolygonF& polygon)
    {
        for (const QPointF& point : polygon) {
            if (!isPoint(point))
                return false;
        }
        return true;
    }
    // A length that cannot be negative: a distance, a line width.
    static bool isLength(double metres) { return metres >= 0.0 && isCoordinate(metres); }
    // A side or a radius of a shape.
    static bool isSize(double metres) { return metres >= minimumSize && isCoordinate(metres); }
    static bool isDensity(double density)
    {
        return density == 0.0 || (density >= minimumDensity && density <= maximumDensity);
    }
    static bool isCoefficient(double value) { return value >= 0.0 && value <= maximumCoefficient; }
    // Hertz; 0 or below stands for a rigid joint.
    static bool isFrequency(double hertz) { return within(hertz, maximumFrequency); }
    static bool isMagnitude(double value) { return within(value, maximumMagnitude); }

private:
    static bool within(double value, double limit) { return std::abs(value) <= limit; }
};
