#pragma once

#include <QByteArray>
#include <QString>

// The web pages of registration: the form (again with the reason when an attempt was
// refused) and the welcome once the account exists.
class RegistrationPage
{
public:
    static QByteArray form(const QString& problem = {}, const QString& userName = {});
    static QByteArray welcome(const QString& userName);
};
