#include "setup/sample/BareTables.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace
{
// Indexes come back before the foreign keys.
const char definitions[] = R"(
    select format('drop index %s', indexrelid::regclass), pg_get_indexdef(indexrelid)
    from pg_index where indrelid = any ('{%1}'::regclass[])
        and not exists (select from pg_constraint where conindid = indexrelid and contype <> 'f')
    union all
    select format('alter table %s drop constraint %I', conrelid::regclass, conname),
        format('alter table %s add constraint %I %s', conrelid::regclass, conname, pg_get_constraintdef(oid))
    from pg_constraint where contype = 'f' and conrelid = any ('{%1}'::regclass[])
    order by 1 desc, 2)";
} // namespace

BareTables::BareTables(const QSqlDatabase& database, const QStringList& tables) : m_database(database), m_tables(tables)
{}

bool BareTables::strip() { return readDefinitions() && run(m_stripping); }

bool BareTables::restore() { return run(m_restoring); }

bool BareTables::readDefinitions()
{
    QSqlQuery query(m_database);
    if (!query.exec(QString(definitions).arg(m_tables.join(',')))) {
        m_failure = query.lastError().text();
        return false;
    }
    while (query.next()) {
        m_stripping.prepend(query.value(0).toString());
        m_restoring.append(query.value(1).toString());
    }
    return true;
}

bool BareTables::run(const QStringList& statements)
{
    for (const QString& statement : statements) {
        QSqlQuery query(m_database);
        if (!query.exec(statement)) {
            m_failure = query.lastError().text();
            return false;
        }
    }
    return true;
}
