#pragma once

#include <box2d/box2d.h>

// The program describes soft joints by a frequency in hertz and a damping ratio; Box2D 2.4
// wants a stiffness in N/m and a damping in N*s/m that depend on the masses of the two
// bodies. This is the one place that translates.
class JointSoftness
{
public:
    // Sets stiffness and damping of a definition that names its two bodies. A frequency of 0
    // gives stiffness 0.
    template<typename Definition>
    static void apply(Definition& definition, double frequencyHz, double dampingRatio)
    {
        b2LinearStiffness(definition.stiffness, definition.damping, float(frequencyHz),
                          float(dampingRatio), definition.bodyA, definition.bodyB);
    }

    // A distance joint with a frequency of 0 or below is a rigid rod of its rest length. Box2D
    // 2.4 has no such switch: stiffness 0 alone leaves a rope that is slack between the minimum
    // and maximum length, and only equal bounds hold the length. A soft joint is a spring with
    // no bounds of its own (Box2D keeps the minimum at its linear slop).
    static void apply(b2DistanceJointDef& definition, double frequencyHz, double dampingRatio)
    {
        if (frequencyHz > 0.0) {
            apply<b2DistanceJointDef>(definition, frequencyHz, dampingRatio);
            definition.minLength = 0.0f;
            definition.maxLength = b2_maxFloat;
        } else {
            definition.stiffness = 0.0f;
            definition.damping = 0.0f;
            definition.minLength = definition.length;
            definition.maxLength = definition.length;
        }
    }
};
