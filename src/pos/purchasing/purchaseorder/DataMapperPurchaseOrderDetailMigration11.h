#pragma once

#include "kor/persistence/KorMigration.h"

/**
 * Adds the foreign key from order lines to orders in an older database. The mapper does not use it: older databases
 * stay without the key, new ones have it from the start.
 */
class DataMapperPurchaseOrderDetailMigration11 final : public KorMigration
{
    Q_OBJECT

public:
    using KorMigration::KorMigration;

    bool up() override
    {
        const bool cleaned =
            run({"UPDATE purchase_order_detail SET purchase_order_id = NULL WHERE purchase_order_id=0;"});
        return addForeignKey("purchase_order_detail", "purchase_order_detail_purchase_order_id_fkey",
                             "purchase_order_id", "purchase_order", "id") &&
               cleaned;
    }
    void down() override {}
    [[nodiscard]] QString description() const override
    {
        return tr("add constraint foreign key purchase_order_id with table purchase_order");
    }
    [[nodiscard]] double version() const override { return 1.1; }
};
