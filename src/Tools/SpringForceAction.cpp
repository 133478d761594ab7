#include "Tools/SpringForceAction.h"

#include "Application/Settings.h"
#include "Commands/SpringForceCommand.h"
#include "Tools/SpringForceContextWidget.h"
#include "View/SpringGraphicsItem.h"

#include <QPen>

SpringForceAction::SpringForceAction(QObject* parent, GraphicsView* graphicsView)
    : BodyPairAction(QIcon(QStringLiteral(":/icons/spring.png")), tr("Create Spring"), parent,
                     graphicsView)
    , spring(new SpringGraphicsItem(QLineF()))
{
    contextWidget = new SpringForceContextWidget();
    // Opaque, unlike other previews, so that the colour shows as the spring will have it.
    addPreview(spring, PreviewPen::Own, 1.0);
    reset();
}

void SpringForceAction::mousePressEvent(QMouseEvent* event)
{
    QPen pen = spring->pen();
    pen.setColor(springColor());
    spring->setPen(pen);
    BodyPairAction::mousePressEvent(event);
}

QGraphicsItem* SpringForceAction::preview() const
{
    return spring;
}

void SpringForceAction::setPreviewLine(const QLineF& line)
{
    spring->setLine(line);
    spring->setRestLength(line.length());
}

QUndoCommand* SpringForceAction::createCommand(BodyItem* first, BodyItem* second,
                                               const QLineF& line) const
{
    if (!second)
        return nullptr;
    const Settings* settings = Settings::instance();
    return new SpringForceCommand(first, second, line.p1(), line.p2(), settings->springForceK,
                                  settings->springForceDamping, springColor());
}

QColor SpringForceAction::springColor()
{
    return QColor(Settings::instance()->springForceColor);
}
