#pragma once

#include "Tools/ActionContextWidget.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

// The strip of the image tool: the picture to stamp, the tolerance of its outline and its scale
// in metres per pixel. The tool's preview follows the picture and the scale at once through
// the signals.
class ImageContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    ImageContextWidget();

    void retranslate() override;

signals:
    void imageFilenameChanged(QString newImageFilename);
    void imageScaleChanged(double newImageScale);

public slots:
    // A cancelled file dialog changes nothing.
    void onImageFilenamePushButtonClicked();
    void onImagePolygonThresholdChanged(double threshold);
    void onImageScaleChanged(double scale);

private:
    QLabel filenameLabel;
    QLineEdit filenameLineEdit;
    QPushButton filenameButton;
    QLabel polygonThresholdLabel;
    QDoubleSpinBox polygonThresholdSpinBox;
    QLabel scaleLabel;
    QDoubleSpinBox scaleSpinBox;
};
