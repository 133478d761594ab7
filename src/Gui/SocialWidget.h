#pragma once

#include <QLabel>

// A row of icons, each a link that offers a page's address and title to a sharing service.
class SocialWidget : public QLabel
{
    Q_OBJECT

public:
    SocialWidget(const QString& url, const QString& title, QWidget* parent = nullptr);
};
