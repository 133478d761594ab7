#include "Scripting/SidebarWidget.h"

#include "Scripting/JSEdit.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

const QColor backgroundColor = Qt::lightGray;
const QColor lineNumberColor = Qt::black;
const QColor foldColumnColor = Qt::white;
const QColor foldArrowColor = Qt::lightGray;
// Room between the numbers and the fold column, in pixels.
constexpr int numberMargin = 4;

// A triangle on a transparent square of the given side, its corners given in fractions of it.
QPixmap arrow(int side, const QPointF (&corners)[3])
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(foldArrowColor);
    QPolygonF triangle;
    for (const QPointF& corner : corners)
        triangle << corner * side;
    painter.drawPolygon(triangle);
    return pixmap;
}

} // namespace

SidebarWidget::SidebarWidget(JSEdit* editor)
    : QWidget(editor)
    , editor(editor)
{
}

void SidebarWidget::setLines(const QVector<BlockInfo>& lines)
{
    lineRecords = lines;
}

void SidebarWidget::updateArrows()
{
    const QSize size(iconWidth, iconWidth);
    if (rightArrowIcon.size() == size && downArrowIcon.size() == size)
        return;
    rightArrowIcon = arrow(iconWidth, {{0.4, 0.25}, {0.4, 0.75}, {0.8, 0.5}});
    downArrowIcon = arrow(iconWidth, {{0.25, 0.4}, {0.75, 0.4}, {0.5, 0.8}});
}

void SidebarWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), backgroundColor);
    painter.setPen(lineNumberColor);
    painter.setFont(font());
    const int numberWidth = width() - iconWidth - numberMargin;
    const int lineHeight = fontMetrics().height();
    // With the numbers off the sidebar is the fold column alone and has no room for them.
    if (numberWidth > 0) {
        for (const BlockInfo& line : qAsConst(lineRecords))
            painter.drawText(0, line.position, numberWidth, lineHeight, Qt::AlignRight,
                             QString::number(line.number));
    }

    if (iconWidth <= 0)
        return;
    const int foldColumn = width() - iconWidth;
    painter.fillRect(foldColumn, 0, iconWidth, height(), foldColumnColor);
    updateArrows();
    for (const BlockInfo& line : qAsConst(lineRecords)) {
        if (line.foldable)
            painter.drawPixmap(foldColumn, line.position,
                               line.folded ? rightArrowIcon : downArrowIcon);
    }
}

void SidebarWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (iconWidth <= 0 || event->x() < width() - iconWidth)
        return;
    const int lineSpacing = fontMetrics().lineSpacing();
    const int y = event->y();
    for (const BlockInfo& line : qAsConst(lineRecords)) {
        if (line.position <= y && y < line.position + lineSpacing) {
            if (line.foldable)
                editor->toggleFold(line.number);
            return;
        }
    }
}
