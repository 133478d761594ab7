#include "DatabaseConnection.h"

#include <QSqlError>
#include <atomic>

DatabaseConnection::DatabaseConnection(const QString& fileName)
{
    static std::atomic<quint64> count {0};
    name = QStringLiteral("repository-%1").arg(++count);
    database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(fileName);
    if (!database.open())
        qWarning("Cannot open %s: %s", qUtf8Printable(fileName),
                 qUtf8Printable(database.lastError().text()));
}

DatabaseConnection::~DatabaseConnection()
{
    database.close();
    // Qt refuses to remove a connection that a handle still refers to.
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

QSqlQuery DatabaseConnection::run(const QString& statement, const QVariantList& values)
{
    QSqlQuery query(database);
    if (!query.prepare(statement)) {
        qWarning("Cannot prepare %s: %s", qUtf8Printable(statement),
                 qUtf8Printable(query.lastError().text()));
        return query;
    }
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec())
        qWarning("Cannot run %s: %s", qUtf8Printable(statement),
                 qUtf8Printable(query.lastError().text()));
    return query;
}
