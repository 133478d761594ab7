#include "Tools/ImageContextWidget.h"

#include "Application/Application.h"
#include "Application/Settings.h"

#include <QFileDialog>

ImageContextWidget::ImageContextWidget()
{
    const Settings* settings = Settings::instance();
    filenameLineEdit.setReadOnly(true);
    filenameLineEdit.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    filenameLineEdit.setText(settings->imageFilename);
    setUp(polygonThresholdSpinBox, 0.01, 0.5, 0.01, settings->imagePolygonThreshold);
    scaleSpinBox.setDecimals(3);
    setUp(scaleSpinBox, 0.005, 0.05, 0.005, settings->imageScale);
    addControls({&filenameLabel, &filenameLineEdit, &filenameButton});
    addControls({&polygonThresholdLabel, &polygonThresholdSpinBox});
    addControls({&scaleLabel, &scaleSpinBox});
    connect(&filenameButton, &QPushButton::clicked, this,
            &ImageContextWidget::onImageFilenamePushButtonClicked);
    connect(&polygonThresholdSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ImageContextWidget::onImagePolygonThresholdChanged);
    connect(&scaleSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ImageContextWidget::onImageScaleChanged);
    retranslate();
}

void ImageContextWidget::retranslate()
{
    filenameLabel.setText(tr("Image"));
    filenameButton.setText(tr("Select..."));
    polygonThresholdLabel.setText(tr("Polygon Threshold"));
    scaleLabel.setText(tr("Scale"));
}

void ImageContextWidget::onImageFilenamePushButtonClicked()
{
    const QString filename = QFileDialog::getOpenFileName(this, tr("Select Image"),
                                                          Application::dataDirectory("images"),
                                                          tr("Images (*.png *.xpm *.jpg)"));
    if (filename.isEmpty())
        return;
    filenameLineEdit.setText(filename);
    Settings::instance()->setImageFilename(filename);
    emit imageFilenameChanged(filename);
}

void ImageContextWidget::onImagePolygonThresholdChanged(double threshold)
{
    Settings::instance()->setImagePolygonThreshold(threshold);
}

void ImageContextWidget::onImageScaleChanged(double scale)
{
    Settings::instance()->setImageScale(scale);
    emit imageScaleChanged(scale);
}
