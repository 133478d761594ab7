#pragma once

#include "Physics/FlagsString.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QLabel;

// Sixteen tick boxes, "Group A" to "Group P", for the collision groups a body belongs to or
// collides with. The result is the ticked letters in order; with none ticked it is "A", since
// a body in no group at all cannot be stored.
class FlagsStringDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FlagsStringDialog(const FlagsString& flags, QWidget* parent = nullptr);

    void setMessage(const QString& message);
    FlagsString flagsString() const;

private:
    QLabel* messageLabel;
    QList<QCheckBox*> checkBoxes;
};
