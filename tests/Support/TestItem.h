#pragma once

#include "Physics/PhysicsItem.h"

#include <QGraphicsRectItem>
#include <functional>

// A minimal concrete item for tests of the world's item handling: it counts updates and can
// run a callback from inside update(), as an OnUpdate script would.
class TestItem : public PhysicsItem
{
    Q_OBJECT
    Q_PROPERTY(double Level READ level WRITE setLevel USER true)
    Q_PROPERTY(int Updates READ updates USER true)

public:
    TestItem() { pGraphicsItem = new QGraphicsRectItem(0, 0, 1, 1); }

    int type() const override { return 3; }
    bool isActive() const override { return active; }
    void setActive(bool isActive) override
    {
        active = isActive;
        pGraphicsItem->setVisible(isActive);
    }
    void update() override
    {
        ++updateCount;
        if (onUpdateCallback)
            onUpdateCallback();
        PhysicsItem::update();
    }

    double level() const { return levelValue; }
    void setLevel(double level) { levelValue = level; }
    int updates() const { return updateCount; }

    std::function<void()> onUpdateCallback;

private:
    bool active = true;
    double levelValue = 0.0;
    int updateCount = 0;
};
