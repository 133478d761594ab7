#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class HelpWidget;
}

// A small browser of the English help pages beside the executable, with back, forward and
// home. A missing page shows an empty browser.
class HelpWidget : public QWidget
{
    Q_OBJECT

public:
    explicit HelpWidget(QWidget* parent = nullptr);
    ~HelpWidget() override;

private slots:
    void onBackwardAvailable(bool available);
    void onForwardAvailable(bool available);

private:
    std::unique_ptr<Ui::HelpWidget> ui;
};
