#include "Gui/GraphicsViewPropertiesWidget.h"

#include "Application/Application.h"
#include "Gui/BrushDialog.h"
#include "View/GraphicsView.h"
#include "ui_GraphicsViewPropertiesWidget.h"

#include <QEvent>
#include <cmath>

namespace {
const double stepsPerDoubling = 50.0;
} // namespace

GraphicsViewPropertiesWidget::GraphicsViewPropertiesWidget(GraphicsView* graphicsView,
                                                           QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::GraphicsViewPropertiesWidget)
    , graphicsView(graphicsView)
{
    ui->setupUi(this);
    if (!graphicsView)
        return;
    BrushDialog::paintPreview(ui->backgroundPreviewLabel, graphicsView->backgroundBrush());
    ui->bodyWithCamera->setText(graphicsView->bodyWithCamera());
    setScale(graphicsView->scale());

    connect(graphicsView, &GraphicsView::backgroundChanged, this,
            &GraphicsViewPropertiesWidget::setBackground);
    connect(graphicsView, &GraphicsView::bodyWithCameraChanged, ui->bodyWithCamera,
            &QLineEdit::setText);
    connect(graphicsView, &GraphicsView::scaleChanged, this,
            QOverload<double>::of(&GraphicsViewPropertiesWidget::setScale));
    connect(ui->backgroundButton, &QPushButton::clicked, this,
            &GraphicsViewPropertiesWidget::onBackgroundButtonClicked);
    // A name that no body has empties the field at once, so a name has to arrive whole.
    connect(ui->bodyWithCamera, &QLineEdit::textEdited, graphicsView,
            QOverload<QString>::of(&GraphicsView::setBodyWithCamera));
    connect(ui->scale, &QSlider::valueChanged, this,
            QOverload<int>::of(&GraphicsViewPropertiesWidget::setScale));
}

GraphicsViewPropertiesWidget::~GraphicsViewPropertiesWidget() = default;

void GraphicsViewPropertiesWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

void GraphicsViewPropertiesWidget::onBackgroundButtonClicked()
{
    if (!graphicsView)
        return;
    BrushDialog dialog(graphicsView->backgroundBrush(),
                       Application::dataDirectory(QStringLiteral("backgrounds")), this);
    dialog.setPreviewScale(graphicsView->scale() * 0.25);
    dialog.resize(400, 600);
    if (dialog.exec() == QDialog::Accepted)
        setBackground(dialog.brush());
}

void GraphicsViewPropertiesWidget::setBackground(QBrush background)
{
    // The view ignores an unchanged brush, which ends the round trip through its signal.
    graphicsView->setBackground(background);
    BrushDialog::paintPreview(ui->backgroundPreviewLabel, background);
}

void GraphicsViewPropertiesWidget::setScale(double scale)
{
    // A change of the slider sets the view to the scale of that step, so a scale set
    // elsewhere snaps to the slider's grid.
    ui->scale->setValue(qRound(stepsPerDoubling * std::log2(scale)));
}

void GraphicsViewPropertiesWidget::setScale(int value)
{
    graphicsView->setScale(std::exp2(value / stepsPerDoubling));
}
