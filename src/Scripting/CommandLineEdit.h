#pragma once

#include <QLineEdit>
#include <QStringList>

// The console's input line. It keeps every accepted line, empty ones too, for the session
// and walks through them with Up and Down; a line being typed is filed rather than lost when
// Down goes past the newest entry.
class CommandLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CommandLineEdit(QWidget* parent = nullptr);

    const QStringList& historyEntries() const { return history; }

signals:
    void gotInput(QString input);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void onReturnPressed();

private:
    QStringList history;
    // Into history; its length means past the newest entry.
    int historyIndex = 0;
};
