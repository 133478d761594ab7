#pragma once

#include <QDialog>

class JSEdit;

// The modal dialog in which the user edits an item's script: a script editor above Ok and
// Cancel. Ok closes it only when the text parses, so a script taken from here is valid; Cancel
// closes it without a check. Owns its editor and the text last accepted.
class JSDialog : public QDialog
{
    Q_OBJECT

public:
    explicit JSDialog(QWidget* parent = nullptr);

    // The text last accepted; empty at first, and empty text clears a script.
    QString text() const { return acceptedText; }
    // For the caller to put the start text in.
    JSEdit* editor() const { return edit; }

public slots:
    void accept() override;

private:
    QString acceptedText;
    JSEdit* edit;
};
