#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

// A connection to the repository's SQLite file for the span of one request. Qt SQL connections
// belong to the thread that opened them and the server answers on a pool of threads, so every
// request opens its own; with SQLite that costs next to nothing. Queries made through it must
// not outlive it.
class DatabaseConnection
{
public:
    explicit DatabaseConnection(const QString& fileName);
    ~DatabaseConnection();
    DatabaseConnection(const DatabaseConnection&) = delete;
    DatabaseConnection& operator=(const DatabaseConnection&) = delete;

    bool isOpen() const { return database.isOpen(); }

    // Runs a statement with its positional values bound in order; the query is inactive, and
    // the reason logged, when it failed.
    QSqlQuery run(const QString& statement, const QVariantList& values = {});

private:
    QString name;
    QSqlDatabase database;
};
