#pragma once

#include "kor/persistence/KorMigration.h"

/**
 * Both statements are expected to fail on most databases: the first one names a table that never existed, the second
 * one a permission name that is already used. No installation depends on either.
 */
class DataMapperPermissionMigration11 final : public KorMigration
{
    Q_OBJECT

public:
    using KorMigration::KorMigration;

    bool up() override
    {
        const QString noSuchTable = "42P01";
        const QString notUnique = "23505";
        const bool unique = run({"ALTER TABLE permission_name ADD UNIQUE (kode);\r\n"}, noSuchTable);
        return run({"update permissions set permission_name='Manage Printer Configurations' where id=50;\r\n"},
                   notUnique) &&
               unique;
    }
    void down() override {}
    [[nodiscard]] QString description() const override { return tr("add unique constraint to column permission_name"); }
    [[nodiscard]] double version() const override { return 1.1; }
};
