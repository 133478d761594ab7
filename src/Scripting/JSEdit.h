#pragma once

#include <QPlainTextEdit>

#include <memory>

struct JSEditPrivate;
class QTextBlock;

// A source editor for ECMAScript: colouring, matching of curly braces, a sidebar with line
// numbers and fold arrows, code folding, marking of a text and zoom by Ctrl and the wheel. It
// owns its private data; the highlighter and the layout belong to its document, the sidebar is
// its child. Line numbers in this interface are 1-based. Depends on nothing but Qt.
class JSEdit : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(bool bracketsMatchingEnabled READ isBracketsMatchingEnabled WRITE
                   setBracketsMatchingEnabled)
    Q_PROPERTY(bool codeFoldingEnabled READ isCodeFoldingEnabled WRITE setCodeFoldingEnabled)
    Q_PROPERTY(bool lineNumbersVisible READ isLineNumbersVisible WRITE setLineNumbersVisible)
    Q_PROPERTY(bool textWrapEnabled READ isTextWrapEnabled WRITE setTextWrapEnabled)

public:
    explicit JSEdit(QWidget* parent = nullptr);
    ~JSEdit() override;

    bool isBracketsMatchingEnabled() const;
    bool isCodeFoldingEnabled() const;
    bool isLineNumbersVisible() const;
    bool isTextWrapEnabled() const;

    // True if the line opens a brace whose partner stands at least two lines further down.
    bool isFoldable(int line) const;
    bool isFolded(int line) const;

public slots:
    void updateSidebar();
    void mark(const QString& str, Qt::CaseSensitivity sens = Qt::CaseInsensitive);
    void setBracketsMatchingEnabled(bool enable);
    void setCodeFoldingEnabled(bool enable);
    void setLineNumbersVisible(bool visible);
    void setTextWrapEnabled(bool enable);
    void fold(int line);
    void unfold(int line);
    void toggleFold(int line);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private slots:
    void updateCursor();
    void updateSidebar(const QRect& rect, int dy);

private:
    int findFoldEnd(const QTextBlock& block) const;
    void refreshFolding(const QTextBlock& first, const QTextBlock& last);

    std::unique_ptr<JSEditPrivate> d;
};
