#pragma once

#include "kor/persistence/KorMigration.h"

/** Version 1.1 widened the account code of stock adjustments. */
class DataMapperStockTakeMigration11 final : public KorStatementMigration11
{
    Q_OBJECT

public:
    explicit DataMapperStockTakeMigration11(const QString& table)
        : KorStatementMigration11({"ALTER TABLE " + table + " ALTER COLUMN source_acct_code TYPE varchar(20)"},
                                  tr("update source_acct_code column to varchar(20)"), nullptr)
    {}
};
