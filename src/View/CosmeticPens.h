#pragma once

class QGraphicsItem;

// Gives every shape and line item of a tree a cosmetic pen of one pixel, so that outlines keep
// their width at every zoom and add nothing to the items' shapes.
class CosmeticPens
{
public:
    static void apply(QGraphicsItem* item);
};
