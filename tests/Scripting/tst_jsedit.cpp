#include "Scripting/JSDialog.h"
#include "Scripting/JSEdit.h"
#include "Scripting/SidebarWidget.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

namespace {

const QColor matchColor(180, 238, 180);
const QColor errorColor(224, 128, 128);

// The editor with its text, highlighted: the highlighter's first pass over a new document waits
// for the event loop.
void setText(JSEdit& editor, const QString& text)
{
    editor.setPlainText(text);
    QCoreApplication::processEvents();
}

// One letter per character of a line for the colour the highlighter gave it: k keyword,
// b built-in name, n number, s string or regular expression, o operator, c comment, m marked,
// a blank for none.
QString colourCodes(const QTextBlock& block)
{
    const QHash<QRgb, QChar> letters {
        {QColor("#000080").rgb(), 'k'}, {QColor("#008080").rgb(), 'b'},
        {QColor("#008000").rgb(), 'n'}, {QColor("#800000").rgb(), 's'},
        {QColor("#808000").rgb(), 'o'}, {QColor("#808080").rgb(), 'c'}};
    QString codes(block.length() - 1, ' ');
    for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
        const bool marked = range.format.background().color() == QColor("#ffff00");
        const QChar letter
            = marked ? QChar('m') : letters.value(range.format.foreground().color().rgb(), '?');
        for (int i = range.start; i < range.start + range.length; ++i)
            codes[i] = letter;
    }
    return codes;
}

// Positions of the single-character extra selections in the given colour.
QList<int> selectedPositions(const JSEdit& editor, const QColor& color)
{
    QList<int> positions;
    for (const QTextEdit::ExtraSelection& selection : editor.extraSelections()) {
        if (selection.format.background().color() == color)
            positions << selection.cursor.selectionStart();
    }
    return positions;
}

// The 1-based numbers of the lines folding hides.
QList<int> hiddenLines(const JSEdit& editor)
{
    QList<int> lines;
    for (QTextBlock block = editor.document()->firstBlock(); block.isValid();
         block = block.next()) {
        if (!block.isVisible())
            lines << block.blockNumber() + 1;
    }
    return lines;
}

} // namespace

// The script editor: colouring and brace records across lines, matching, folding, the sidebar
// and zoom; and the script dialog that refuses text which doesn't parse.
class TestJSEdit : public QObject
{
    Q_OBJECT

private slots:
    void highlighting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("mark");
        QTest::addColumn<bool>("caseSensitive");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("colours");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("depth");

        const QString none;
        QTest::newRow("numbers split at the point, line comment")
            << "var a = 1.5; // note" << none << false << 0 << "kkk   o nono ccccccc" << 0 << 0;
        QTest::newRow("block comment, first line")
            << "/* a\nb */" << none << false << 0 << "cccc" << 4 << 0;
        QTest::newRow("block comment, second line")
            << "/* a\nb */" << none << false << 1 << "cccc" << 0 << 0;
        QTest::newRow("unterminated string")
            << "\"abc\nx = 1" << none << false << 0 << "    " << 0 << 0;
        QTest::newRow("line after an unterminated string")
            << "\"abc\nx = 1" << none << false << 1 << "  o n" << 0 << 0;
        QTest::newRow("division opens an unterminated expression")
            << "a / b" << none << false << 0 << "     " << 0 << 0;
        QTest::newRow("two divisions read as an expression")
            << "a / b / c" << none << false << 0 << "  sssss  " << 0 << 0;
        QTest::newRow("escaped quote and built-in names")
            << "'it\\'s' + Math.PI" << none << false << 0 << "sssssss o bbbbobb" << 0 << 0;
        QTest::newRow("non-ASCII letter and digit")
            << "\u03c01 = \u0663" << none << false << 0 << "   o n" << 0 << 0;
        QTest::newRow("depth inside braces")
            << "if (x) {\n  y();\n}" << none << false << 1 << "     o" << 0 << 1;
        QTest::newRow("comment survives a surplus closing brace")
            << "} /* a\nb */ x" << none << false << 1 << "cccc  " << 0 << 0;
        QTest::newRow("mark ignoring case")
            << "var Note = note;" << QString("note") << false << 0 << "kkk mmmm o mmmmo" << 0 << 0;
        QTest::newRow("mark with case")
            << "var Note = note;" << QString("note") << true << 0 << "kkk      o mmmmo" << 0 << 0;
        QTest::newRow("overlapping marks")
            << "aaa" << QString("aa") << false << 0 << "mmm" << 0 << 0;
    }

    void highlighting()
    {
        QFETCH(QString, text);
        QFETCH(QString, mark);
        QFETCH(bool, caseSensitive);
        QFETCH(int, line);
        JSEdit editor;
        setText(editor, text);
        editor.mark(mark, caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);

        const QTextBlock block = editor.document()->findBlockByNumber(line);
        QTEST(colourCodes(block), "colours");
        QTEST(block.userState() & 0xf, "state");
        QTEST(block.userState() >> 4, "depth");
    }

    void braceMatching_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QList<int>>("matches");
        QTest::addColumn<QList<int>>("errors");

        QTest::newRow("before an opening brace")
            << "{ }" << 0 << true << QList<int> {0, 2} << QList<int> {};
        QTest::newRow("closing brace in a string is no partner")
            << "{\n  \"}\"\n}" << 0 << true << QList<int> {0, 8} << QList<int> {};
        QTest::newRow("opening brace in a comment is no partner")
            << "{ /* { */\n}" << 11 << true << QList<int> {10, 0} << QList<int> {};
        QTest::newRow("after an unmatched closing brace")
            << "x }" << 3 << true << QList<int> {} << QList<int> {2};
        QTest::newRow("before an unmatched opening brace")
            << "{ x" << 0 << true << QList<int> {} << QList<int> {0};
        QTest::newRow("between two unmatched braces")
            << "}{" << 1 << true << QList<int> {} << QList<int> {1, 0};
        QTest::newRow("brace in a string is not matched")
            << "\"{\" {}" << 1 << true << QList<int> {} << QList<int> {};
        QTest::newRow("matching switched off")
            << "{ }" << 0 << false << QList<int> {} << QList<int> {};
    }

    void braceMatching()
    {
        QFETCH(QString, text);
        QFETCH(int, cursor);
        QFETCH(bool, enabled);
        JSEdit editor;
        setText(editor, text);
        editor.setBracketsMatchingEnabled(enabled);
        QTextCursor moved = editor.textCursor();
        moved.setPosition(cursor);
        editor.setTextCursor(moved);

        QTEST(selectedPositions(editor, matchColor), "matches");
        QTEST(selectedPositions(editor, errorColor), "errors");
    }

    void bracesFollowEdits()
    {
        JSEdit editor;
        setText(editor, "{\n\n}");
        QVERIFY(editor.isFoldable(1));
        QTextCursor cursor(editor.document()->lastBlock());
        cursor.deleteChar();
        cursor.insertText("x");
        QVERIFY(!editor.isFoldable(1));
    }

    void folding_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QList<int>>("hidden");

        QTest::newRow("body of a function")
            << "f() {\n a();\n b();\n}\nx" << 1 << QList<int> {2, 3};
        QTest::newRow("inner pair") << "{\n{\n\n}\n}" << 2 << QList<int> {3};
        QTest::newRow("partner on the next line") << "{\n}\nx" << 1 << QList<int> {};
        QTest::newRow("partner on the same line") << "{ }\nx\ny" << 1 << QList<int> {};
        QTest::newRow("closing brace in a string skipped") << "{\n\"}\"\n}" << 1 << QList<int> {2};
        QTest::newRow("closing brace in a comment skipped")
            << "{ /*\n}\n*/ }" << 1 << QList<int> {2};
        QTest::newRow("line past the end") << "{\n\n}" << 7 << QList<int> {};
    }

    // A line is foldable exactly when folding it hides something.
    void folding()
    {
        QFETCH(QString, text);
        QFETCH(int, line);
        QFETCH(QList<int>, hidden);
        JSEdit editor;
        setText(editor, text);
        const QAbstractTextDocumentLayout* layout = editor.document()->documentLayout();
        const int lines = editor.blockCount();
        QCOMPARE(editor.isFoldable(line), !hidden.isEmpty());

        editor.fold(line);
        QCOMPARE(hiddenLines(editor), hidden);
        QCOMPARE(editor.isFolded(line), !hidden.isEmpty());
        QCOMPARE(layout->documentSize().height(), qreal(lines - hidden.size()));
        QCOMPARE(editor.toPlainText(), text);

        editor.unfold(line);
        QCOMPARE(hiddenLines(editor), QList<int> {});
        QCOMPARE(layout->documentSize().height(), qreal(lines));
    }

    // Only a click in the fold column, on a foldable line, toggles its fold.
    void sidebarClick()
    {
        JSEdit editor;
        setText(editor, "f() {\n a();\n}");
        editor.resize(300, 200);
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        auto* sidebar = editor.findChild<SidebarWidget*>();
        QVERIFY(sidebar);
        const int y = editor.cursorRect(QTextCursor(editor.document()->firstBlock())).center().y();
        // Through the window, as a real click comes, so that the press finds its receiver too.
        const auto click = [&](int x) {
            QTest::mouseClick(editor.windowHandle(), Qt::LeftButton, {},
                              sidebar->mapTo(&editor, QPoint(x, y)));
        };

        click(1);
        QVERIFY(!editor.isFolded(1));
        click(sidebar->width() - sidebar->foldIconWidth() / 2);
        QVERIFY(editor.isFolded(1));
        click(sidebar->width() - sidebar->foldIconWidth() / 2);
        QVERIFY(!editor.isFolded(1));
    }

    void sidebarWidth_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<bool>("numbers");
        QTest::addColumn<bool>("folding");
        QTest::addColumn<int>("digits");

        QTest::newRow("10 lines") << 10 << true << false << 2;
        QTest::newRow("11 lines") << 11 << true << false << 3;
        QTest::newRow("101 lines") << 101 << true << false << 4;
        QTest::newRow("folding alone") << 10 << false << true << 0;
        QTest::newRow("neither") << 10 << false << false << 0;
    }

    void sidebarWidth()
    {
        QFETCH(int, lines);
        QFETCH(bool, numbers);
        QFETCH(bool, folding);
        QFETCH(int, digits);
        JSEdit editor;
        setText(editor, QString("\n").repeated(lines - 1));
        editor.setLineNumbersVisible(numbers);
        editor.setCodeFoldingEnabled(folding);
        auto* sidebar = editor.findChild<SidebarWidget*>();
        QVERIFY(sidebar);

        QCOMPARE(sidebar->isHidden(), !numbers && !folding);
        if (sidebar->isHidden())
            return;
        const QFontMetrics metrics(editor.font());
        const int charWidth = metrics.horizontalAdvance('w');
        const int foldWidth = folding ? qMax(metrics.lineSpacing(), charWidth) : 0;
        QCOMPARE(sidebar->foldIconWidth(), foldWidth);
        QCOMPARE(sidebar->width(), digits * charWidth + foldWidth);
    }

    void wheelZoom_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("delta");
        QTest::addColumn<bool>("control");
        QTest::addColumn<int>("zoomed");

        QTest::newRow("up") << 12 << 40 << true << 14;
        QTest::newRow("three points a step at most") << 12 << 240 << true << 15;
        QTest::newRow("not below 10") << 11 << -120 << true << 10;
        QTest::newRow("not above 40") << 39 << 120 << true << 40;
        QTest::newRow("without control") << 20 << 120 << false << 20;
    }

    void wheelZoom()
    {
        QFETCH(int, size);
        QFETCH(int, delta);
        QFETCH(bool, control);
        JSEdit editor;
        QFont font = editor.font();
        font.setPointSize(size);
        editor.setFont(font);

        QWheelEvent wheel(QPointF(10, 10), QPointF(10, 10), QPoint(), QPoint(0, delta),
                          Qt::NoButton, control ? Qt::ControlModifier : Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(editor.viewport(), &wheel);
        QTEST(editor.font().pointSize(), "zoomed");
    }

    void dialog_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDialogButtonBox::StandardButton>("button");
        QTest::addColumn<int>("finished");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");

        const QString old = "var old = 0;";
        const QString syntaxError = "The program contains a syntax error.";
        const int open = -1;
        const QString none;
        QTest::newRow("empty text clears") << QString() << QDialogButtonBox::Ok
                                           << int(QDialog::Accepted) << QString() << none << none;
        QTest::newRow("valid text") << "var a = 1;" << QDialogButtonBox::Ok
                                    << int(QDialog::Accepted) << "var a = 1;" << none << none;
        QTest::newRow("unclosed parameter list")
            << "function (" << QDialogButtonBox::Ok << open << old << syntaxError
            << "Expected `)'\n\n[Line: 1, Column: 10]";
        QTest::newRow("missing name")
            << "var = 1" << QDialogButtonBox::Ok << open << old << syntaxError
            << "Expected `identifier'\n\n[Line: 1, Column: 5]";
        QTest::newRow("error without a message")
            << "a +" << QDialogButtonBox::Ok << open << old << syntaxError
            << syntaxError + "\n\n[Line: 1, Column: 3]";
        QTest::newRow("incomplete")
            << "{" << QDialogButtonBox::Ok << open << old << "The program is incomplete."
            << "The program is incomplete.\n\n[Line: 1, Column: 1]";
        QTest::newRow("cancel on invalid text") << "var = 1" << QDialogButtonBox::Cancel
                                                << int(QDialog::Rejected) << old << none << none;
    }

    void dialog()
    {
        QFETCH(QString, text);
        QFETCH(QDialogButtonBox::StandardButton, button);
        QFETCH(int, finished);
        QString title;
        QString message;
        JSDialog dialog;
        dialog.editor()->setPlainText("var old = 0;");
        dialog.accept();

        QSignalSpy finishedSpy(&dialog, &QDialog::finished);
        dialog.show();
        dialog.editor()->setPlainText(text);
        // Reads and closes the message box from inside its own event loop: the test never blocks.
        QTimer::singleShot(0, &dialog, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                title = box->windowTitle();
                message = box->text();
                box->done(QMessageBox::Ok);
            }
        });
        dialog.findChild<QDialogButtonBox*>()->button(button)->click();
        QCoreApplication::processEvents();

        if (finished == -1) {
            QVERIFY(finishedSpy.isEmpty());
            QVERIFY(dialog.isVisible());
        } else {
            QCOMPARE(finishedSpy.count(), 1);
            QCOMPARE(finishedSpy.at(0).at(0).toInt(), finished);
            QVERIFY(!dialog.isVisible());
        }
        QTEST(dialog.text(), "stored");
        QTEST(title, "title");
        QTEST(message, "message");
    }
};

QTEST_MAIN(TestJSEdit)
#include "tst_jsedit.moc"
