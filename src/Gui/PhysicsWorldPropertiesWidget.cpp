#include "Gui/PhysicsWorldPropertiesWidget.h"

#include "Physics/PhysicsWorld.h"
#include "ui_PhysicsWorldPropertiesWidget.h"

#include <QEvent>

PhysicsWorldPropertiesWidget::PhysicsWorldPropertiesWidget(PhysicsWorld* physicsWorld,
                                                           QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::PhysicsWorldPropertiesWidget)
    , physicsWorld(physicsWorld)
{
    ui->setupUi(this);
    if (!physicsWorld)
        return;
    ui->gravityX->setValue(physicsWorld->gravityX());
    ui->gravityY->setValue(physicsWorld->gravityY());
    ui->stepFrequency->setValue(physicsWorld->stepFrequency());
    ui->velocityIterations->setValue(physicsWorld->velocityIterations());
    ui->positionIterations->setValue(physicsWorld->positionIterations());
    ui->warmStarting->setChecked(physicsWorld->warmStarting());
    ui->continuousPhysics->setChecked(physicsWorld->continuousPhysics());
    updateInfo();

    // The loop closes because a control set to the value it has emits nothing, and the world
    // reports only actual changes. A value from a script outside a control's range comes back
    // clipped from the control.
    using Spin = QSpinBox;
    using DoubleSpin = QDoubleSpinBox;
    connect(physicsWorld, &PhysicsWorld::gravityXChanged, ui->gravityX, &DoubleSpin::setValue);
    connect(physicsWorld, &PhysicsWorld::gravityYChanged, ui->gravityY, &DoubleSpin::setValue);
    connect(physicsWorld, &PhysicsWorld::stepFrequencyChanged, ui->stepFrequency, &Spin::setValue);
    connect(physicsWorld, &PhysicsWorld::velocityIterationsChanged, ui->velocityIterations,
            &Spin::setValue);
    connect(physicsWorld, &PhysicsWorld::positionIterationsChanged, ui->positionIterations,
            &Spin::setValue);
    connect(physicsWorld, &PhysicsWorld::warmStartingChanged, ui->warmStarting,
            &QCheckBox::setChecked);
    connect(physicsWorld, &PhysicsWorld::continuousPhysicsChanged, ui->continuousPhysics,
            &QCheckBox::setChecked);

    connect(ui->gravityX, QOverload<double>::of(&DoubleSpin::valueChanged), physicsWorld,
            &PhysicsWorld::setGravityX);
    connect(ui->gravityY, QOverload<double>::of(&DoubleSpin::valueChanged), physicsWorld,
            &PhysicsWorld::setGravityY);
    connect(ui->stepFrequency, QOverload<int>::of(&Spin::valueChanged), physicsWorld,
            &PhysicsWorld::setStepFrequency);
    connect(ui->velocityIterations, QOverload<int>::of(&Spin::valueChanged), physicsWorld,
            &PhysicsWorld::setVelocityIterations);
    connect(ui->positionIterations, QOverload<int>::of(&Spin::valueChanged), physicsWorld,
            &PhysicsWorld::setPositionIterations);
    connect(ui->warmStarting, &QCheckBox::toggled, physicsWorld, &PhysicsWorld::setWarmStarting);
    connect(ui->continuousPhysics, &QCheckBox::toggled, physicsWorld,
            &PhysicsWorld::setContinuousPhysics);
}

PhysicsWorldPropertiesWidget::~PhysicsWorldPropertiesWidget() = default;

void PhysicsWorldPropertiesWidget::updateInfo()
{
    if (!physicsWorld)
        return;
    ui->seconds->setText(QStringLiteral("%1").arg(physicsWorld->seconds(), 0, 'f', 2));
    ui->bodies->setText(QString::number(physicsWorld->bodyCount()));
    ui->joints->setText(QString::number(physicsWorld->jointCount()));
}

void PhysicsWorldPropertiesWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}
