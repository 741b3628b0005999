#pragma once

#include "kor/persistence/KorMigration.h"

/** Ties purchase lines to order lines. No update run reaches a line mapper, so old tables keep their looser form. */
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
