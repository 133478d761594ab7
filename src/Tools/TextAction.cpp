#include "Tools/TextAction.h"

#include "Application/Settings.h"
#include "Commands/TextCommand.h"
#include "Tools/TextContextWidget.h"

#include <QGraphicsPathItem>
#include <QMouseEvent>

namespace {
QFont textFont()
{
    const Settings* settings = Settings::instance();
    return QFont(settings->fontFamily, settings->fontPointSize, -1, false);
}
} // namespace

TextAction::TextAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/text.png")), tr("Create Text"), parent,
                         graphicsView)
    , preview(new QGraphicsPathItem())
{
    auto* strip = new TextContextWidget();
    connect(strip, &TextContextWidget::textChanged, this, &TextAction::onParameterChanged);
    connect(strip, &TextContextWidget::fontFamilyChanged, this, &TextAction::onParameterChanged);
    connect(strip, &TextContextWidget::fontPointSizeChanged, this, &TextAction::onParameterChanged);
    contextWidget = strip;
    // A font unit is a tenth of a metre, and font units run down.
    preview->setTransform(QTransform(0.1, 0.0, 0.0, -0.1, 0.0, 0.0));
    addPreview(preview);
    reset();
}

void TextAction::onParameterChanged()
{
    QPainterPath path;
    path.addText(QPointF(0.0, 0.0), textFont(), Settings::instance()->text);
    preview->setPath(path);
}

void TextAction::reset()
{
    // The next text's colour is chosen as the last one is put down.
    pickBrush();
    preview->setBrush(brush);
    preview->hide();
    onParameterChanged();
}

void TextAction::mouseMoveEvent(QMouseEvent* event)
{
    preview->setPos(snappedScenePos(event->pos()));
    preview->show();
}

void TextAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF point = snappedScenePos(event->pos());
    push(new TextCommand(point.x(), point.y(), Settings::instance()->text, textFont(),
                         preview->brush()));
    reset();
}
