#include "kor/persistence/KorMigration.h"

#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorQuery.h"

#include <utility>

namespace
{
// A migration is gone once its mapper has run it, and the mapper tells only whether all went well.
thread_local QStringList failures;
} // namespace

QStringList KorMigration::takeFailures() { return std::exchange(failures, {}); }

bool KorMigration::run(const QStringList& statements)
{
    bool succeeded = true;
    for (const QString& statement : statements) {
        KorQuery query;
        if (!query.exec(statement)) {
            m_errorText = query.failureWithStatement();
            failures.append(m_errorText);
            succeeded = false;
        }
    }
    return succeeded;
}

bool KorMigration::addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                                 const QString& referencedTable, const QString& referencedColumn)
{
    return run({KorDataMapper::foreignKeyStatement(table, constraintName, column, referencedTable, referencedColumn)});
}

QString KorMigration::lastQueryWithValues(const QSqlQuery& query) { return KorQuery::textWithValues(query); }
