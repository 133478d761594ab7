#include "UserStore.h"

#include "DatabaseConnection.h"

#include <QDateTime>
#include <QPasswordDigestor>
#include <QRandomGenerator>
#include <algorithm>

namespace {

constexpr int Iterations = 120000;
constexpr int SaltBytes = 16;
constexpr int KeyBytes = 32;
constexpr int MaxNameLength = 40;
constexpr int MinPasswordLength = 6;

// Compares every byte whatever the first difference, so the time taken tells nothing.
bool equalInConstantTime(const QByteArray& a, const QByteArray& b)
{
    if (a.size() != b.size())
        return false;
    unsigned char difference = 0;
    for (int i = 0; i < a.size(); ++i)
        difference |= static_cast<unsigned char>(a[i] ^ b[i]);
    return difference == 0;
}

} // namespace

UserStore::UserStore(const QString& databaseFile)
    : databaseFile(databaseFile)
{
}

bool UserStore::open()
{
    DatabaseConnection connection(databaseFile);
    return connection.isOpen()
        && connection
               .run(QStringLiteral("CREATE TABLE IF NOT EXISTS users ("
                                   "id INTEGER PRIMARY KEY, name TEXT NOT NULL, "
                                   "name_key TEXT NOT NULL UNIQUE, salt BLOB NOT NULL, "
                                   "password_key BLOB NOT NULL, iterations INTEGER NOT NULL, "
                                   "created TEXT NOT NULL)"))
               .isActive();
}

QString UserStore::nameProblem(const QString& name)
{
    if (name.isEmpty())
        return QStringLiteral("Please choose a user name.");
    const bool allowed
        = name.size() <= MaxNameLength && std::all_of(name.begin(), name.end(), [](QChar c) {
              return c.isLetterOrNumber() || c == '_' || c == '-' || c == '.';
          });
    if (!allowed)
        return QStringLiteral("A user name has 1 to %1 letters, digits, underscores (_), "
                              "hyphens (-) or dots (.).")
            .arg(MaxNameLength);
    return {};
}

QString UserStore::add(const QString& name, const QString& password,
                       const QString& repeatedPassword)
{
    const QString problem = nameProblem(name);
    if (!problem.isEmpty())
        return problem;
    const QString taken = QStringLiteral("The user name %1 is already taken.").arg(name);
    if (key(name) == key(anonymousName()) || exists(name))
        return taken;
    if (password.size() < MinPasswordLength)
        return QStringLiteral("The password needs at least %1 characters.").arg(MinPasswordLength);
    if (password != repeatedPassword)
        return QStringLiteral("The two passwords differ.");

    QByteArray salt(SaltBytes, Qt::Uninitialized);
    QRandomGenerator::system()->fillRange(reinterpret_cast<quint32*>(salt.data()),
                                          SaltBytes / sizeof(quint32));
    DatabaseConnection connection(databaseFile);
    // The unique key settles a race between two people registering the same name.
    const bool added = connection
                           .run(QStringLiteral("INSERT INTO users (name, name_key, salt, "
                                               "password_key, iterations, created) "
                                               "VALUES (?, ?, ?, ?, ?, ?)"),
                                {name, key(name), salt, derive(password, salt, Iterations),
                                 Iterations, QDateTime::currentDateTimeUtc().toString(Qt::ISODate)})
                           .isActive();
    return added ? QString() : taken;
}

bool UserStore::exists(const QString& name) const
{
    DatabaseConnection connection(databaseFile);
    QSqlQuery query
        = connection.run(QStringLiteral("SELECT 1 FROM users WHERE name_key = ?"), {key(name)});
    return query.next();
}

bool UserStore::verify(const QString& name, const QString& password) const
{
    DatabaseConnection connection(databaseFile);
    QSqlQuery query = connection.run(
        QStringLiteral("SELECT salt, password_key, iterations FROM users WHERE name_key = ?"),
        {key(name)});
    if (!query.next()) {
        // Take as long as for a real account, so that timing does not reveal which names exist.
        derive(password, QByteArray(SaltBytes, '\0'), Iterations);
        return false;
    }
    const QByteArray salt = query.value(0).toByteArray();
    const QByteArray stored = query.value(1).toByteArray();
    return equalInConstantTime(derive(password, salt, query.value(2).toInt()), stored);
}

QByteArray UserStore::derive(const QString& password, const QByteArray& salt, int iterations)
{
    return QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha256, password.toUtf8(), salt,
                                              iterations, KeyBytes);
}
