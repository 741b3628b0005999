#pragma once

#include "kor/persistence/KorMigration.h"

/**
 * Adds the foreign key from purchase lines to order lines. Updates do not run migrations of line mappers, so old tables
 * do not get it.
 */
class DataMapperAcquisitionDetailMigration11 final : public KorMigration
{
    Q_OBJECT

public:
    using KorMigration::KorMigration;

    bool up() override
    {
        const bool cleaned = run({"UPDATE acquisition_detail SET po_detail_id = NULL WHERE po_detail_id=0;"});
        return addForeignKey("acquisition_detail", "acquisition_detail_po_detail_id_fkey", "po_detail_id",
                             "purchase_order_detail", "id") &&
               cleaned;
    }
    void down() override {}
    [[nodiscard]] QString description() const override
    {
        return tr("add constraint foreign key po_detail_id with table purchase_order_detail");
    }
    [[nodiscard]] double version() const override { return 1.1; }
};
