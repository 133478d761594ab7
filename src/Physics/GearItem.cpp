#include "Physics/GearItem.h"

#include <cmath>

namespace {
// 2π in single precision, as a double: the tooth count and the tooth angles are computed with
// it, which fixes the teeth of a stored scene to the same digits.
const double twoPi = 6.2831854820251465;

// A script can ask for any size; beyond this many teeth the fixtures would exhaust memory
// before they made a wheel.
const double maximumToothCount = 10000.0;

int toothCount(double pitchCircleRadius, double toothCountDivisor)
{
    const double count = std::round(pitchCircleRadius * twoPi / toothCountDivisor);
    return std::isfinite(count) && count > 0.0 ? int(qMin(count, maximumToothCount)) : 0;
}

} // namespace

QList<QPolygonF> gearTeeth(double pitchCircleRadius, double toothSize, double toothCountDivisor)
{
    const int count = toothCount(pitchCircleRadius, toothCountDivisor);
    const double inner = pitchCircleRadius - toothSize / 2;
    const double outer = pitchCircleRadius + toothSize / 2;
    const double quarterStep = twoPi / count / 4;
    QList<QPolygonF> teeth;
    for (int i = 0; i < count; ++i) {
        const double a = float(i) * float(twoPi) / float(count);
        teeth.append(QPolygonF() << QPointF(inner * std::cos(a), inner * std::sin(a))
                                 << QPointF(outer * std::cos(a + quarterStep),
                                            outer * std::sin(a + quarterStep))
                                 << QPointF(outer * std::cos(a + 2 * quarterStep),
                                            outer * std::sin(a + 2 * quarterStep))
                                 << QPointF(inner * std::cos(a + 3 * quarterStep),
                                            inner * std::sin(a + 3 * quarterStep)));
    }
    return teeth;
}

QPolygonF gearOutline(double pitchCircleRadius, double toothSize, double toothCountDivisor)
{
    QPolygonF outline;
    for (const QPolygonF& tooth : gearTeeth(pitchCircleRadius, toothSize, toothCountDivisor))
        outline << tooth;
    return outline;
}
