#pragma once

#include <QByteArray>
#include <QString>

// The accounts of the people who upload scenes, kept in the repository's SQLite file. Passwords
// are stored only as salted PBKDF2-HMAC-SHA256 keys with their iteration count, so the count can
// grow for new accounts without locking out old ones. User names compare case-insensitively.
class UserStore
{
public:
    explicit UserStore(const QString& databaseFile);

    // Creates the table if needed; false when the file cannot be used.
    bool open();

    // Creates an account. Returns an empty string on success, else the reason for the person
    // registering.
    QString add(const QString& name, const QString& password, const QString& repeatedPassword);

    bool verify(const QString& name, const QString& password) const;

    // The name under which anonymous uploads are made; nobody may register it.
    static QString anonymousName() { return QStringLiteral("Anonymous"); }

private:
    static QString key(const QString& name) { return name.toCaseFolded(); }
    static QString nameProblem(const QString& name);
    static QByteArray derive(const QString& password, const QByteArray& salt, int iterations);
    bool exists(const QString& name) const;

    QString databaseFile;
};
