#pragma once

#include "Tools/ActionContextWidget.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

// The strip of the camera tool: whether the main view follows the clicked body or a new camera
// window does, and a button that closes every camera window.
class CameraContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    CameraContextWidget();

    void retranslate() override;

public slots:
    void onCameraModeChanged(int mode);
    void onCameraRemoveAllClicked();

private:
    QLabel modeLabel;
    QComboBox modeComboBox;
    QPushButton removeAllButton;
};
