#pragma once

#include "kor/persistence/KorMigration.h"

class DataMapperStockTakeMigration11 final : public KorStatementMigration11
{
    Q_OBJECT

public:
    explicit DataMapperStockTakeMigration11(const QString& table)
        : KorStatementMigration11({"ALTER TABLE " + table + " ALTER COLUMN source_acct_code TYPE varchar(20)"},
                                  tr("update source_acct_code column to varchar(20)"), nullptr)
    {}
};
