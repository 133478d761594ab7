#pragma once

#include <QWidget>
#include <memory>

class GraphicsView;

namespace Ui {
class SettingsWidget;
}

// The content of the "Settings" dock: every preference of the settings file, written at once
// at each change, with no Apply and no Cancel. Changes to the view, the step timer, the style,
// the language and the script debugger take effect on the running program as well.
class SettingsWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsWidget(GraphicsView* graphicsView, QWidget* parent = nullptr);
    ~SettingsWidget() override;

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onOpenGLToggled();
    void onAntialiasingToggled();
    void onTimerIntervalChanged();
    void onStyleChanged(QString styleName);
    void onLanguageChanged();
    void onShowScaleIndicatorCheckBoxToggled();
    void onAttachScriptDebuggerCheckBoxToggled();

private:
    void fillLanguages();
    void load();
    void connectControls();
    // The step period in milliseconds beside its slider.
    void showTimerInterval();

    std::unique_ptr<Ui::SettingsWidget> ui;
    GraphicsView* graphicsView;
};
