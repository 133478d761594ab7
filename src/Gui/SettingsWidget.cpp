#include "Gui/SettingsWidget.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsView.h"
#include "ui_SettingsWidget.h"

#include <QEvent>
#include <QStyleFactory>

namespace {
const char* const languageKey = "General/Language";
} // namespace

SettingsWidget::SettingsWidget(GraphicsView* graphicsView, QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::SettingsWidget)
    , graphicsView(graphicsView)
{
    ui->setupUi(this);
    // A viewport without a working context would take the program down, so the check is
    // stricter than whether the library has OpenGL at all.
    ui->openGLCheckBox->setEnabled(Application::canCreateOpenGLContext());
    ui->guiStyleComboBox->addItems(QStyleFactory::keys());
    fillLanguages();
    // Loading comes before the connections, so that it sets off none of their effects.
    load();
    connectControls();
}

SettingsWidget::~SettingsWidget() = default;

void SettingsWidget::fillLanguages()
{
    const QList<QLocale::Language> languages = Application::instance()->translators.keys();
    for (QLocale::Language language : languages) {
        const QStringList parts = QLocale(language, QLocale::AnyCountry).name().split('_');
        if (parts.size() != 2)
            continue;
        ui->languageComboBox->addItem(
            QIcon(QStringLiteral(":/icons/languages/%1.png").arg(parts.first())),
            QLocale::languageToString(language), int(language));
    }
}

void SettingsWidget::load()
{
    const Settings* settings = Settings::instance();
    ui->openGLCheckBox->setChecked(settings->useOpenGL);
    ui->antialiasingCheckBox->setChecked(settings->antialiasing);
    ui->timerIntervalSlider->setValue(settings->timerInterval);
    showTimerInterval();
    ui->linearDampingDoubleSpinBox->setValue(settings->linearDampingDefault);
    ui->angularDampingDoubleSpinBox->setValue(settings->angularDampingDefault);
    ui->frictionDoubleSpinBox->setValue(settings->frictionDefault);
    ui->restitutionDoubleSpinBox->setValue(settings->restitutionDefault);
    ui->allowSleepCheckBox->setChecked(settings->allowSleepDefault);
    ui->isBulletCheckBox->setChecked(settings->isBulletDefault);
    // The stored style only positions the box; the style in force changes when one is picked.
    ui->guiStyleComboBox->setCurrentIndex(settings->guiStyle);
    ui->createGroundOnStartupCheckBox->setChecked(settings->createGroundOnStartup);
    ui->showScaleIndicatorCheckBox->setChecked(settings->showScaleIndicator);
    ui->showTipsAtStartupCheckBox->setChecked(settings->showTipsAtStartup);
    ui->attachScriptDebuggerCheckBox->setChecked(settings->attachScriptDebugger);

    // A stored language is applied here. Before anything is stored, on a first run, the box
    // shows the language the program chose from the system's. An unknown stored language
    // changes neither the box nor the language.
    const bool stored = settings->contains(QLatin1String(languageKey));
    const int index = ui->languageComboBox->findData(
        stored ? settings->language : int(Application::instance()->language()));
    if (index < 0)
        return;
    ui->languageComboBox->setCurrentIndex(index);
    if (stored)
        onLanguageChanged();
}

void SettingsWidget::connectControls()
{
    Settings* settings = Settings::instance();
    connect(ui->openGLCheckBox, &QCheckBox::toggled, this, &SettingsWidget::onOpenGLToggled);
    connect(ui->antialiasingCheckBox, &QCheckBox::toggled, this,
            &SettingsWidget::onAntialiasingToggled);
    connect(ui->timerIntervalSlider, &QSlider::valueChanged, this,
            &SettingsWidget::onTimerIntervalChanged);
    using Spin = QDoubleSpinBox;
    connect(ui->linearDampingDoubleSpinBox, QOverload<double>::of(&Spin::valueChanged), settings,
            &Settings::setLinearDampingDefault);
    connect(ui->angularDampingDoubleSpinBox, QOverload<double>::of(&Spin::valueChanged), settings,
            &Settings::setAngularDampingDefault);
    connect(ui->frictionDoubleSpinBox, QOverload<double>::of(&Spin::valueChanged), settings,
            &Settings::setFrictionDefault);
    connect(ui->restitutionDoubleSpinBox, QOverload<double>::of(&Spin::valueChanged), settings,
            &Settings::setRestitutionDefault);
    connect(ui->allowSleepCheckBox, &QCheckBox::toggled, settings, &Settings::setAllowSleepDefault);
    connect(ui->isBulletCheckBox, &QCheckBox::toggled, settings, &Settings::setIsBulletDefault);
    connect(ui->guiStyleComboBox, &QComboBox::currentTextChanged, this,
            &SettingsWidget::onStyleChanged);
    connect(ui->languageComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SettingsWidget::onLanguageChanged);
    connect(ui->createGroundOnStartupCheckBox, &QCheckBox::toggled, settings,
            &Settings::setCreateGroundOnStartup);
    connect(ui->showScaleIndicatorCheckBox, &QCheckBox::toggled, this,
            &SettingsWidget::onShowScaleIndicatorCheckBoxToggled);
    connect(ui->showTipsAtStartupCheckBox, &QCheckBox::toggled, settings,
            &Settings::setShowTipsAtStartup);
    connect(ui->attachScriptDebuggerCheckBox, &QCheckBox::toggled, this,
            &SettingsWidget::onAttachScriptDebuggerCheckBoxToggled);
}

void SettingsWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showTimerInterval();
    }
    QWidget::changeEvent(event);
}

void SettingsWidget::onOpenGLToggled()
{
    const bool useOpenGL = ui->openGLCheckBox->isChecked();
    QWidget* viewport = useOpenGL ? GraphicsView::openGLViewport() : nullptr;
    // The view takes the new viewport and deletes the old one; the scene stays as it is.
    graphicsView->setViewport(viewport ? viewport : new QWidget());
    Settings::instance()->setUseOpenGL(useOpenGL);
}

void SettingsWidget::onAntialiasingToggled()
{
    const bool antialiasing = ui->antialiasingCheckBox->isChecked();
    graphicsView->setRenderHint(QPainter::Antialiasing, antialiasing);
    Settings::instance()->setAntialiasing(antialiasing);
}

void SettingsWidget::showTimerInterval()
{
    ui->timerIntervalValueLabel->setText(tr("%1 ms").arg(ui->timerIntervalSlider->value()));
}

void SettingsWidget::onTimerIntervalChanged()
{
    showTimerInterval();
    // The world's timer takes its period when it starts, so a running world starts again.
    PhysicsWorld* world = PhysicsWorld::instance();
    const bool running = world->running();
    if (running)
        world->stop();
    Settings::instance()->setTimerInterval(ui->timerIntervalSlider->value());
    if (running)
        world->start();
}

void SettingsWidget::onStyleChanged(QString styleName)
{
    if (QStyle* style = QStyleFactory::create(styleName))
        QApplication::setStyle(style);
    Settings::instance()->setGuiStyle(ui->guiStyleComboBox->currentIndex());
}

void SettingsWidget::onLanguageChanged()
{
    const QVariant language = ui->languageComboBox->currentData();
    if (!language.isValid())
        return;
    Application::instance()->setLanguage(QLocale::Language(language.toInt()));
    Settings::instance()->setLanguage(language.toInt());
}

void SettingsWidget::onShowScaleIndicatorCheckBoxToggled()
{
    Settings::instance()->setShowScaleIndicator(ui->showScaleIndicatorCheckBox->isChecked());
    graphicsView->scene()->update();
}

void SettingsWidget::onAttachScriptDebuggerCheckBoxToggled()
{
    Application* application = Application::instance();
    if (ui->attachScriptDebuggerCheckBox->isChecked())
        application->attachScriptDebugger();
    else
        application->detachScriptDebugger();
    Settings::instance()->setAttachScriptDebugger(ui->attachScriptDebuggerCheckBox->isChecked());
}
