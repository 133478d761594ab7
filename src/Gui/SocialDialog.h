#pragma once

#include <QDialog>

// Shown as the program closes: asks the user to share it, with a row of sharing links.
class SocialDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SocialDialog(QWidget* parent = nullptr);
};
