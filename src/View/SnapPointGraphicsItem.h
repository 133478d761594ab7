#pragma once

#include <QGraphicsRectItem>

// The marker of the point a tool snapped to: a small translucent blue square above all else.
class SnapPointGraphicsItem : public QGraphicsRectItem
{
public:
    SnapPointGraphicsItem();
};
