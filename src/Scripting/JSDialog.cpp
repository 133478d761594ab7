#include "Scripting/JSDialog.h"

#include "Scripting/JSEdit.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QScriptEngine>
#include <QVBoxLayout>

JSDialog::JSDialog(QWidget* parent)
    : QDialog(parent)
    , edit(new JSEdit(this))
{
    edit->setTabStopDistance(3 * edit->fontMetrics().averageCharWidth());
    edit->setTextWrapEnabled(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                         Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &JSDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &JSDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(edit);
    layout->addWidget(buttons);
}

// The text is checked alone, without the function the script engine wraps it in.
void JSDialog::accept()
{
    const QString program = edit->toPlainText();
    const QScriptSyntaxCheckResult result = QScriptEngine::checkSyntax(program);
    if (result.state() == QScriptSyntaxCheckResult::Valid) {
        acceptedText = program;
        QDialog::accept();
        return;
    }

    QString title;
    QString message;
    if (result.state() == QScriptSyntaxCheckResult::Error) {
        title = tr("The program contains a syntax error.");
        message = result.errorMessage().isEmpty() ? title : result.errorMessage();
    } else {
        title = tr("The program is incomplete.");
        message = title;
    }
    if (result.errorLineNumber() != -1 && result.errorColumnNumber() != -1)
        message += tr("\n\n[Line: %1, Column: %2]")
                       .arg(result.errorLineNumber())
                       .arg(result.errorColumnNumber());
    QMessageBox::warning(this, title, message, QMessageBox::Ok);
    edit->setFocus();
}
