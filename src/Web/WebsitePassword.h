#pragma once

#include <QString>

// The website password of a user, kept in the system keyring and never in the settings file.
// Where no keyring answers, nothing is kept and the user types the password again. Each call
// waits for the keyring at most a few seconds.
class WebsitePassword
{
public:
    // Empty when the keyring has none for `username` or cannot be reached.
    static QString load(const QString& username);
    // Whether the keyring took it.
    static bool store(const QString& username, const QString& password);
};
