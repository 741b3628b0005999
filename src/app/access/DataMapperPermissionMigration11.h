#pragma once

#include "kor/persistence/KorMigration.h"

/**
 * The first statement names a table that never was; the second one renames a right under a name that another one has
 * in most databases. Both failures are in order: installed ones rely on neither.
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
