#pragma once

#include <QSqlDatabase>
#include <QStringList>

/**
 * Takes indexes and foreign keys away from tables that are to be filled, and puts them back as they were: checking and
 * sorting all rows once is many times faster than doing it row by row. Primary keys and unique constraints stay. Meant
 * for one transaction around all of it, so that nobody ever sees the tables bare.
 */
class BareTables
{
public:
    BareTables(const QSqlDatabase& database, const QStringList& tables);

    /** False when a statement failed; see failure(). */
    [[nodiscard]] bool strip();
    [[nodiscard]] bool restore();
    [[nodiscard]] QString failure() const { return m_failure; }

private:
    [[nodiscard]] bool readDefinitions();
    [[nodiscard]] bool run(const QStringList& statements);

    QSqlDatabase m_database;
    QStringList m_tables;
    QStringList m_stripping;
    QStringList m_restoring;
    QString m_failure;
};
