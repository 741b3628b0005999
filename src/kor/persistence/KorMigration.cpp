#include "kor/persistence/KorMigration.h"

#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorQuery.h"

bool KorMigration::run(const QStringList& statements)
{
    bool succeeded = true;
    for (const QString& statement : statements) {
        KorQuery query;
        if (!query.exec(statement)) {
            m_errorText = query.failure() + "\r\n" + lastQueryWithValues(query);
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
