#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>

namespace Ui {
class TipDialog;
}

// The tip of the day: one of a few hints, chosen at random, with the way to the others and
// the choice whether it comes at start-up, stored at once.
class TipDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TipDialog(QWidget* parent = nullptr);
    ~TipDialog() override;

protected slots:
    void onShowTipsAtStartupToggled(bool showTipsAtStartup);
    void onNext();
    void onPrevious();

private:
    void showTip();

    std::unique_ptr<Ui::TipDialog> ui;
    QStringList tips;
    int index = 0;
};
