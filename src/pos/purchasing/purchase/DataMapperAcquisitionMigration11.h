#pragma once

#include "kor/persistence/KorMigration.h"

/**
 * Adds the foreign key from purchases to orders in an older database. A database created by this program already has
 * it; there the migration reports that it exists, which is expected.
 */
class DataMapperAcquisitionMigration11 final : public KorMigration
{
    Q_OBJECT

public:
    using KorMigration::KorMigration;

    bool up() override
    {
        const bool cleaned = run({"UPDATE acquisition SET po_id = NULL WHERE po_id=0;"});
        const QString alreadyThere = "42710";
        return addForeignKey("acquisition", "acquisition_po_id_fkey", "po_id", "purchase_order", "id", alreadyThere) &&
               cleaned;
    }
    void down() override {}
    [[nodiscard]] QString description() const override
    {
        return tr("add constraint foreign key po_id with table purchase_order");
    }
    [[nodiscard]] double version() const override { return 1.1; }
};
