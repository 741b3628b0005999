#include "kor/persistence/KorMigration.h"

#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorQuery.h"

#include <utility>

namespace
{
// Kept here because a mapper deletes its migrations after running them and only reports success or failure.
thread_local QList<KorMigration::Failure> failures;
} // namespace

QList<KorMigration::Failure> KorMigration::takeFailures() { return std::exchange(failures, {}); }

bool KorMigration::run(const QStringList& statements, const QString& expectedState)
{
    bool succeeded = true;
    for (const QString& statement : statements) {
        KorQuery query;
        if (!query.exec(statement)) {
            m_errorText = query.failureWithStatement();
            const QString state = query.lastError().nativeErrorCode();
            failures.append({m_errorText, !state.isEmpty() && state == expectedState});
            succeeded = false;
        }
    }
    return succeeded;
}

bool KorMigration::addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                                 const QString& referencedTable, const QString& referencedColumn,
                                 const QString& expectedState)
{
    return run({KorDataMapper::foreignKeyStatement(table, constraintName, column, referencedTable, referencedColumn)},
               expectedState);
}

QString KorMigration::lastQueryWithValues(const QSqlQuery& query) { return KorQuery::textWithValues(query); }
