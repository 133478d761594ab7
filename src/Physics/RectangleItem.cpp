#include "Physics/RectangleItem.h"

#include "General/XPolygonF.h"
#include "Physics/Box2DLimits.h"

#include <QFont>
#include <QGraphicsRectItem>
#include <QGraphicsTextItem>

namespace {
// Text is laid out at this many pixels per metre.
const double textPixelsPerMetre = 50.0;
// Laying text out takes time that grows faster than its length; a rectangle shows no more
// than this many characters of its text, and keeps the rest.
const int maximumShownText = 4000;
// Points: fonts beyond this size take the renderer more memory than a screen is worth.
const int maximumTextSize = 1000;
} // namespace

RectangleItem::RectangleItem(double x, double y, double theta, double w, double h)
    : BodyItem(x, y, theta)
    , rectangleWidth(w)
    , rectangleHeight(h)
{
    auto* shape = new b2PolygonShape();
    shape->SetAsBox(float(w * 0.5), float(h * 0.5));
    setShapes({shape});
    rectItem = new QGraphicsRectItem(-w / 2, -h / 2, w, h);
    pGraphicsItem = rectItem;
    initialiseGraphics(x, y, theta);
}

void RectangleItem::setText(QString text)
{
    // Every undo and redo writes the text back: laying it out again only when it changed.
    if (text == textValue)
        return;
    textValue = text;
    if (!textItem && !text.isEmpty())
        createTextItem();
    if (textItem) {
        textItem->setPlainText(text.left(maximumShownText));
        textItem->setVisible(!text.isEmpty());
    }
}

void RectangleItem::setTextColor(QColor color)
{
    if (color == textColorValue)
        return;
    textColorValue = color;
    if (textItem)
        textItem->setDefaultTextColor(color);
}

void RectangleItem::setTextSize(int size)
{
    if (size == textSizeValue || size < 1 || size > maximumTextSize)
        return;
    textSizeValue = size;
    if (textItem) {
        QFont font = textItem->font();
        font.setPointSize(size);
        textItem->setFont(font);
    }
}

void RectangleItem::createTextItem()
{
    textItem = new QGraphicsTextItem(rectItem);
    textItem->setDefaultTextColor(textColorValue);
    QFont font = textItem->font();
    font.setPointSize(textSizeValue);
    textItem->setFont(font);
    textItem->setTransform(
        QTransform::fromScale(1.0 / textPixelsPerMetre, -1.0 / textPixelsPerMetre), true);
    placeTextItem();
}

void RectangleItem::placeTextItem()
{
    textItem->setTextWidth(rectangleWidth * textPixelsPerMetre);
    textItem->setPos(-rectangleWidth / 2, rectangleHeight / 2);
}

void RectangleItem::setWidth(double w)
{
    if (!Box2DLimits::isSize(w) || w == rectangleWidth)
        return;
    rectangleWidth = w;
    resize();
}

void RectangleItem::setHeight(double h)
{
    if (!Box2DLimits::isSize(h) || h == rectangleHeight)
        return;
    rectangleHeight = h;
    resize();
}

void RectangleItem::resize()
{
    const double w = rectangleWidth;
    const double h = rectangleHeight;
    rectItem->setRect(-w / 2, -h / 2, w, h);
    // The definition's shape was made here, so it may be changed in place.
    static_cast<b2PolygonShape*>(const_cast<b2Shape*>(fixtureDefinitions.first()->shape))
        ->SetAsBox(float(w * 0.5), float(h * 0.5));
    recreateFixtures();
    if (textItem)
        placeTextItem();
}

void RectangleItem::scale(double factor)
{
    const double w = rectangleWidth * factor;
    const double h = rectangleHeight * factor;
    if (w < 0.1 || h < 0.1 || !Box2DLimits::isSize(w) || !Box2DLimits::isSize(h))
        return;
    setWidth(w);
    setHeight(h);
}

QPolygonF RectangleItem::snapPoints() const
{
    // Pulled in a little, so that a point snapped to lies inside the body.
    const double a = rectangleWidth / 2 - 0.005;
    const double b = rectangleHeight / 2 - 0.005;
    return QPolygonF() << QPointF(0, 0) << QPointF(-a, -b) << QPointF(-a, b) << QPointF(a, -b)
                       << QPointF(a, b) << QPointF(-a, 0) << QPointF(a, 0) << QPointF(0, -b)
                       << QPointF(0, b);
}

QPolygonF RectangleItem::worldPolygon() const
{
    return XPolygonF(itemTransform().map(QPolygonF(rectItem->rect())));
}
