#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class AboutDialog;
}

// The about box: the program's page with its version and addresses, the credits and the
// list of changes, each from the resources.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);
    ~AboutDialog() override;

private:
    std::unique_ptr<Ui::AboutDialog> ui;
};
