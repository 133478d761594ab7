#include "Tools/CameraContextWidget.h"

#include "Application/Application.h"
#include "Application/Settings.h"

CameraContextWidget::CameraContextWidget()
{
    addControls({&modeLabel, &modeComboBox}, 20);
    addControls({&removeAllButton}, 0);
    connect(&modeComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CameraContextWidget::onCameraModeChanged);
    connect(&removeAllButton, &QPushButton::clicked, this,
            &CameraContextWidget::onCameraRemoveAllClicked);
    retranslate();
}

void CameraContextWidget::retranslate()
{
    modeLabel.setText(tr("Camera Mode"));
    removeAllButton.setText(tr("Remove All Cameras"));
    // The index is the mode itself.
    refill(modeComboBox, {tr("Use Default Viewport"), tr("Create New Viewport")}, {},
           Settings::instance()->cameraMode);
}

void CameraContextWidget::onCameraModeChanged(int mode)
{
    Settings::instance()->setCameraMode(mode);
}

void CameraContextWidget::onCameraRemoveAllClicked()
{
    Application::instance()->removeAllCameras();
}
