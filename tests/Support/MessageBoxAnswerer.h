#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QObject>
#include <QStringList>
#include <QTimer>

// Answers every message box that opens from now on with Ok, keeping its text.
class MessageBoxAnswerer : public QObject
{
public:
    MessageBoxAnswerer()
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                texts.append(box->text());
                box->accept();
            }
        });
        timer.start(20);
    }
    QStringList texts;

private:
    QTimer timer;
};
