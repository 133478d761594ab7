#pragma once

#include "Physics/PhysicsWorld.h"

// Rectangles and circles in turn, 40 to a row, in rows upwards from the floor of a new
// scene's box and inside its walls.
inline void fillBox(PhysicsWorld* world, int bodyCount)
{
    const int columns = 40;
    const double left = -9.5;
    const double spacing = 19.0 / columns;
    const double size = spacing * 0.8;
    for (int i = 0; i < bodyCount; ++i) {
        const double x = left + spacing * (i % columns + 0.5);
        const double y = 0.5 + spacing * (i / columns);
        if (i % 2)
            world->createCircle(x, y, 0.0, size / 2);
        else
            world->createRectangle(x, y, 0.0, size, size);
    }
}
