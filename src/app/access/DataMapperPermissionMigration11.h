#pragma once

#include "kor/persistence/KorMigration.h"

/** The first statement names a table that never was, and fails on every database; installed ones rely on neither. */
class DataMapperPermissionMigration11 final : public KorStatementMigration11
{
    Q_OBJECT

public:
    DataMapperPermissionMigration11()
        : KorStatementMigration11(
              {"ALTER TABLE permission_name ADD UNIQUE (kode);\r\n",
               "update permissions set permission_name='Manage Printer Configurations' where id=50;\r\n"},
              tr("add unique constraint to column permission_name"), nullptr)
    {}
};
