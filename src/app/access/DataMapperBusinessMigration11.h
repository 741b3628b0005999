#pragma once

#include "kor/persistence/KorMigration.h"

/** Version 1.1 made the names of the services unique. */
class DataMapperBusinessMigration11 final : public KorStatementMigration11
{
    Q_OBJECT

public:
    DataMapperBusinessMigration11()
        : KorStatementMigration11({"ALTER TABLE business ADD UNIQUE (name);\r\n"},
                                  tr("Add unique constraint to column name"), nullptr)
    {}
};
