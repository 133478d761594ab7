#include "Tools/ActionContextWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>

ActionContextWidget::ActionContextWidget(QWidget* parent)
    : QWidget(parent)
    , row(new QHBoxLayout(this))
{
    row->setContentsMargins(0, 0, 0, 0);
}

void ActionContextWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ActionContextWidget::addControls(std::initializer_list<QWidget*> controls, int spacing)
{
    for (QWidget* control : controls)
        row->addWidget(control);
    if (spacing > 0)
        row->addSpacing(spacing);
}

void ActionContextWidget::setUp(QDoubleSpinBox& box, double minimum, double maximum, double step,
                                double value)
{
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    box.setValue(value);
}

void ActionContextWidget::refill(QComboBox& box, const QStringList& texts, const QList<int>& data,
                                 int stored)
{
    const QSignalBlocker blocker(box);
    box.clear();
    for (int i = 0; i < texts.size(); ++i)
        box.addItem(texts.at(i), data.isEmpty() ? QVariant() : QVariant(data.at(i)));
    box.setCurrentIndex(data.isEmpty() ? stored
                                       : box.findData(stored, Qt::UserRole,
                                                      Qt::MatchExactly | Qt::MatchCaseSensitive));
}
