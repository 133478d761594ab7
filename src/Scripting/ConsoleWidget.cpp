#include "Scripting/ConsoleWidget.h"

#include "Application/Application.h"
#include "Scripting/ScriptRunner.h"
#include "ui_ConsoleWidget.h"

#include <QScriptEngine>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFormat>

ConsoleWidget::ConsoleWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ConsoleWidget>())
{
    ui->setupUi(this);
    // The log is not edited as a text: an undo history of every message would grow for ever.
    ui->textEdit->document()->setUndoRedoEnabled(false);
    styles.insert(Brivane::Info, {Qt::darkBlue, QStringLiteral(":/icons/console/info.png")});
    styles.insert(Brivane::Warning,
                  {Qt::darkYellow, QStringLiteral(":/icons/console/warning.png")});
    styles.insert(Brivane::Critical, {Qt::darkRed, QStringLiteral(":/icons/console/critical.png")});
    styles.insert(Brivane::Input, {Qt::black, QStringLiteral(":/icons/console/input.png")});
    styles.insert(Brivane::Output, {Qt::black, QStringLiteral(":/icons/console/output.png")});
    connect(ui->commandLineEdit, &CommandLineEdit::gotInput, this, &ConsoleWidget::onGotInput);
}

ConsoleWidget::~ConsoleWidget() = default;

ConsoleMessageStyle ConsoleWidget::style(Brivane::ConsoleMessageType type)
{
    auto found = styles.find(type);
    if (found == styles.end())
        found = styles.insert(type, ConsoleMessageStyle());
    return found.value();
}

void ConsoleWidget::debug(const QString& text, Brivane::ConsoleMessageType type)
{
    const ConsoleMessageStyle messageStyle = style(type);
    QTextEdit* log = ui->textEdit;
    QTextCursor cursor(log->document());
    cursor.movePosition(QTextCursor::End);
    // Each message is a block of its own: the document then lays out only the new block,
    // where one growing block would be laid out whole for every message, and old messages
    // can be dropped as whole blocks.
    if (!log->document()->isEmpty())
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    if (!messageStyle.iconPath.isEmpty()) {
        QTextImageFormat icon;
        icon.setName(messageStyle.iconPath);
        icon.setVerticalAlignment(QTextCharFormat::AlignMiddle);
        cursor.insertImage(icon);
    }
    // The text is markup on purpose: scripts may print rich text.
    cursor.insertHtml(QStringLiteral("<span style='font-size: 10px; color: %1'>&nbsp;%2</span>")
                          .arg(messageStyle.color.name(), text));
    trimLog();
    log->setTextCursor(cursor);
    log->ensureCursorVisible();
}

void ConsoleWidget::trimLog()
{
    QTextDocument* document = ui->textEdit->document();
    const int excess = document->blockCount() - maximumMessages;
    if (excess <= maximumMessages / 10)
        return;
    QTextCursor oldest(document);
    oldest.setPosition(document->findBlockByNumber(excess).position(), QTextCursor::KeepAnchor);
    oldest.removeSelectedText();
}

void ConsoleWidget::setStopAction(QAction* action)
{
    ui->stopButton->setDefaultAction(action);
}

void ConsoleWidget::onGotInput(QString s)
{
    const QString simplified = s.simplified();
    debug(simplified, Brivane::Input);
    // The line as typed is checked; its simplified form is what runs.
    const QScriptSyntaxCheckResult check = QScriptEngine::checkSyntax(s);
    if (!check.errorMessage().isEmpty()) {
        debug(check.errorMessage(), Brivane::Warning);
        return;
    }
    Application* application = Application::instance();
    if (!application || !application->scriptRunner)
        return;
    QScriptEngine* engine = application->scriptEngine;
    const QScriptValue result = application->scriptRunner->evaluate(simplified, QString(), 1);
    // A thrown value need not be an Error object.
    const bool failed = result.isError() || engine->hasUncaughtException();
    engine->clearExceptions();
    if (failed)
        debug(result.toString(), Brivane::Warning);
    // A stopped line has no result; the stop itself is reported once the engine is idle.
    else if (result.isValid())
        debug(result.toString(), Brivane::Output);
}
