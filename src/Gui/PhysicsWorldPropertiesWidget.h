#pragma once

#include <QWidget>
#include <memory>

class PhysicsWorld;

namespace Ui {
class PhysicsWorldPropertiesWidget;
}

// The "Physics World" page of the scene properties: gravity, step frequency, solver
// iterations and flags, bound both ways to the world's properties, and the world's figures
// (simulated seconds, bodies, joints), which the owner refreshes.
class PhysicsWorldPropertiesWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PhysicsWorldPropertiesWidget(PhysicsWorld* physicsWorld, QWidget* parent = nullptr);
    ~PhysicsWorldPropertiesWidget() override;

public slots:
    void updateInfo();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::PhysicsWorldPropertiesWidget> ui;
    PhysicsWorld* physicsWorld;
};
