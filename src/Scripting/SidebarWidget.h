#pragma once

#include <QPixmap>
#include <QVector>
#include <QWidget>

class JSEdit;

// The strip at the left of the script editor: line numbers and, in a column at its right, fold
// arrows; a click on an arrow folds or unfolds its line. It owns only what it paints, the
// records of the lines now on view and the cached arrows; the editor fills the records and
// sets the sizes.
class SidebarWidget : public QWidget
{
    Q_OBJECT

public:
    // One line on view: its top in sidebar pixels and its 1-based number.
    struct BlockInfo
    {
        int position = 0;
        int number = 0;
        bool foldable = false;
        bool folded = false;
    };

    explicit SidebarWidget(JSEdit* editor);

    void setLines(const QVector<BlockInfo>& lines);
    int foldIconWidth() const { return iconWidth; }
    // 0 when folding is off: there is no fold column then.
    void setFoldIconWidth(int width) { iconWidth = width; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void updateArrows();

    JSEdit* editor;
    QVector<BlockInfo> lineRecords;
    int iconWidth = 0;
    QPixmap rightArrowIcon;
    QPixmap downArrowIcon;
};
