#include "Scripting/JSEdit.h"

#include "Scripting/JSBlockData.h"
#include "Scripting/JSDocLayout.h"
#include "Scripting/JSHighlighter.h"
#include "Scripting/SidebarWidget.h"

#include <QTextBlock>
#include <QWheelEvent>

namespace {

constexpr int minimumPointSize = 10;
constexpr int maximumPointSize = 40;
// Wheel angle, in eighths of a degree, for one point of zoom, and the most points per event.
constexpr int wheelDeltaPerPoint = 20;
constexpr int maximumZoomStep = 3;

const QLatin1Char openingBrace('{');
const QLatin1Char closingBrace('}');

QList<int> bracketPositions(const QTextBlock& block)
{
    const auto* data = dynamic_cast<const JSBlockData*>(block.userData());
    return data ? data->bracketPositions : QList<int>();
}

// True if a brace of that kind stands at position and the highlighter counted it, that is it is
// in no string or comment.
bool isRecordedBrace(const QTextDocument* document, int position, QChar brace)
{
    if (position < 0 || document->characterAt(position) != brace)
        return false;
    const QTextBlock block = document->findBlock(position);
    return bracketPositions(block).contains(position - block.position());
}

// The partner of the '{' at position, searched forwards through the brace records; -1 if none.
int findClosingBrace(const QTextDocument* document, int position)
{
    QTextBlock block = document->findBlock(position);
    if (bracketPositions(block).isEmpty())
        return -1;
    int count = 1;
    for (; block.isValid(); block = block.next()) {
        for (int offset : bracketPositions(block)) {
            const int at = block.position() + offset;
            if (at <= position)
                continue;
            if (document->characterAt(at) == openingBrace)
                ++count;
            else if (--count == 0)
                return at;
        }
    }
    return -1;
}

// The partner of the '}' at position, searched backwards through the brace records; -1 if none.
int findOpeningBrace(const QTextDocument* document, int position)
{
    int count = 1;
    for (QTextBlock block = document->findBlock(position); block.isValid();
         block = block.previous()) {
        const QList<int> braces = bracketPositions(block);
        for (auto offset = braces.crbegin(); offset != braces.crend(); ++offset) {
            const int at = block.position() + *offset;
            if (at >= position)
                continue;
            if (document->characterAt(at) == closingBrace)
                ++count;
            else if (--count == 0)
                return at;
        }
    }
    return -1;
}

void appendCharacterSelections(QList<QTextEdit::ExtraSelection>& selections,
                               QTextDocument* document, const QList<int>& positions,
                               const QColor& color)
{
    for (int position : positions) {
        QTextEdit::ExtraSelection selection;
        selection.format.setBackground(color);
        selection.cursor = QTextCursor(document);
        selection.cursor.setPosition(position);
        selection.cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
        selections.append(selection);
    }
}

} // namespace

struct JSEditPrivate
{
    JSDocLayout* layout = nullptr;
    JSHighlighter* highlighter = nullptr;
    SidebarWidget* sidebar = nullptr;
    bool showLineNumbers = true;
    bool textWrap = true;
    QColor cursorColor = QColor(255, 255, 192);
    bool bracketsMatching = true;
    QList<int> matchPositions;
    QColor matchColor = QColor(180, 238, 180);
    QList<int> errorPositions;
    QColor errorColor = QColor(224, 128, 128);
    bool codeFolding = true;
};

JSEdit::JSEdit(QWidget* parent)
    : QPlainTextEdit(parent)
    , d(std::make_unique<JSEditPrivate>())
{
    d->layout = new JSDocLayout(document());
    d->highlighter = new JSHighlighter(document());
    d->sidebar = new SidebarWidget(this);
    document()->setDocumentLayout(d->layout);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &JSEdit::updateCursor);
    connect(this, &QPlainTextEdit::blockCountChanged, this, qOverload<>(&JSEdit::updateSidebar));
    connect(this, &QPlainTextEdit::updateRequest, this,
            qOverload<const QRect&, int>(&JSEdit::updateSidebar));
}

JSEdit::~JSEdit() = default;

bool JSEdit::isBracketsMatchingEnabled() const
{
    return d->bracketsMatching;
}

bool JSEdit::isCodeFoldingEnabled() const
{
    return d->codeFolding;
}

bool JSEdit::isLineNumbersVisible() const
{
    return d->showLineNumbers;
}

bool JSEdit::isTextWrapEnabled() const
{
    return d->textWrap;
}

void JSEdit::mark(const QString& str, Qt::CaseSensitivity sens)
{
    d->highlighter->setMark(str, sens);
}

void JSEdit::setBracketsMatchingEnabled(bool enable)
{
    d->bracketsMatching = enable;
    updateCursor();
}

void JSEdit::setCodeFoldingEnabled(bool enable)
{
    d->codeFolding = enable;
    // Without fold arrows, lines folded now could never be shown again.
    if (!enable) {
        for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
            if (isFolded(block.blockNumber() + 1))
                unfold(block.blockNumber() + 1);
        }
    }
    updateSidebar();
}

void JSEdit::setLineNumbersVisible(bool visible)
{
    d->showLineNumbers = visible;
    updateSidebar();
}

void JSEdit::setTextWrapEnabled(bool enable)
{
    d->textWrap = enable;
    setLineWrapMode(enable ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void JSEdit::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    updateSidebar();
}

void JSEdit::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    const int steps
        = qBound(-maximumZoomStep, event->angleDelta().y() / wheelDeltaPerPoint, maximumZoomStep);
    QFont zoomed = font();
    zoomed.setPointSize(qBound(minimumPointSize, zoomed.pointSize() + steps, maximumPointSize));
    setFont(zoomed);
    updateSidebar();
    event->accept();
}

void JSEdit::updateCursor()
{
    if (isReadOnly()) {
        setExtraSelections({});
        return;
    }
    d->matchPositions.clear();
    d->errorPositions.clear();
    if (d->bracketsMatching) {
        const int p = textCursor().position();
        if (isRecordedBrace(document(), p, openingBrace)) {
            const int partner = findClosingBrace(document(), p);
            if (partner >= 0)
                d->matchPositions << p << partner;
            else
                d->errorPositions << p;
        }
        if (isRecordedBrace(document(), p - 1, closingBrace)) {
            const int partner = findOpeningBrace(document(), p - 1);
            if (partner >= 0)
                d->matchPositions << p - 1 << partner;
            else
                d->errorPositions << p - 1;
        }
    }

    QTextEdit::ExtraSelection currentLine;
    currentLine.format.setBackground(d->cursorColor);
    currentLine.format.setProperty(QTextFormat::FullWidthSelection, true);
    currentLine.cursor = textCursor();
    currentLine.cursor.clearSelection();
    QList<QTextEdit::ExtraSelection> selections {currentLine};
    appendCharacterSelections(selections, document(), d->matchPositions, d->matchColor);
    appendCharacterSelections(selections, document(), d->errorPositions, d->errorColor);
    setExtraSelections(selections);
}

void JSEdit::updateSidebar(const QRect&, int dy)
{
    if (dy != 0)
        updateSidebar();
}

void JSEdit::updateSidebar()
{
    if (!d->showLineNumbers && !d->codeFolding) {
        d->sidebar->hide();
        setViewportMargins(0, 0, 0, 0);
        return;
    }
    d->sidebar->setFont(font());
    d->sidebar->show();

    const int charWidth = fontMetrics().horizontalAdvance(QLatin1Char('w'));
    int width = 0;
    if (d->showLineNumbers) {
        // Two digits at least, and one more for each power of ten the line count exceeds.
        int digits = 2;
        for (qint64 reach = 10; reach < blockCount(); reach *= 10)
            ++digits;
        width += digits * charWidth;
    }
    const int foldIconWidth = d->codeFolding ? qMax(fontMetrics().lineSpacing(), charWidth) : 0;
    width += foldIconWidth;
    d->sidebar->setFoldIconWidth(foldIconWidth);
    setViewportMargins(width, 0, 0, 0);
    // Beside the viewport, inside the frame, so that its rows meet the lines of text.
    const QRect area = contentsRect();
    d->sidebar->setGeometry(area.left(), area.top(), width, area.height());

    QVector<SidebarWidget::BlockInfo> lines;
    const int bottom = d->sidebar->height();
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        if (!block.isVisible())
            continue;
        const QRectF rect = blockBoundingGeometry(block).translated(contentOffset());
        if (rect.top() > bottom)
            break;
        if (rect.bottom() < 0)
            continue;
        SidebarWidget::BlockInfo line;
        line.position = qRound(rect.top());
        line.number = block.blockNumber() + 1;
        if (d->codeFolding) {
            line.foldable = isFoldable(line.number);
            line.folded = isFolded(line.number);
        }
        lines.append(line);
    }
    d->sidebar->setLines(lines);
    d->sidebar->update();
}

int JSEdit::findFoldEnd(const QTextBlock& block) const
{
    for (int offset : bracketPositions(block)) {
        const int at = block.position() + offset;
        if (document()->characterAt(at) != openingBrace)
            continue;
        const int partner = findClosingBrace(document(), at);
        if (partner >= 0)
            return partner;
    }
    return -1;
}

bool JSEdit::isFoldable(int line) const
{
    const int end = findFoldEnd(document()->findBlockByNumber(line - 1));
    if (end < 0)
        return false;
    const QTextBlock endBlock = document()->findBlock(end);
    return endBlock.isValid() && endBlock.blockNumber() > line;
}

bool JSEdit::isFolded(int line) const
{
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    return block.isValid() && block.next().isValid() && !block.next().isVisible();
}

void JSEdit::fold(int line)
{
    const QTextBlock first = document()->findBlockByNumber(line - 1);
    const int end = findFoldEnd(first);
    if (end < 0)
        return;
    // The line with the closing brace stays on view.
    const QTextBlock last = document()->findBlock(end);
    for (QTextBlock block = first.next(); block.isValid() && block.position() < last.position();
         block = block.next()) {
        block.setVisible(false);
        block.setLineCount(0);
    }
    refreshFolding(first, last);
}

void JSEdit::unfold(int line)
{
    const QTextBlock first = document()->findBlockByNumber(line - 1);
    if (!first.isValid())
        return;
    QTextBlock block = first.next();
    for (; block.isValid() && !block.isVisible(); block = block.next()) {
        block.setVisible(true);
        block.setLineCount(block.layout()->lineCount());
    }
    refreshFolding(first, block.isValid() ? block : document()->lastBlock());
}

void JSEdit::toggleFold(int line)
{
    if (isFolded(line))
        unfold(line);
    else
        fold(line);
}

// Visibility of blocks is no change of content, so the layout and the sidebar are told by hand.
void JSEdit::refreshFolding(const QTextBlock& first, const QTextBlock& last)
{
    document()->markContentsDirty(first.position(),
                                  last.position() + last.length() - first.position());
    updateSidebar();
    update();
    d->layout->forceUpdate();
}
