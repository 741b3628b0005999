#pragma once

#include "pos/purchasing/document/PurchasingDocumentMapper.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"

class DataMapperBank;
class DataMapperSupplier;

/** Purchase orders with their lines, in the tables "purchase_order" and "purchase_order_detail". */
class DataMapperPurchaseOrder final : public PurchasingDocumentMapper<EntityPurchaseOrder>
{
    Q_OBJECT

public:
    DataMapperPurchaseOrder(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers,
                            DataMapperBank* accounts, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "PO"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** Without lines: orders whose goods can still be received, sorted by date. */
    [[nodiscard]] QList<EntityPurchaseOrder*> getOpenBySupplier(const EntitySupplier* supplier);

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] PurchasingColumns filterColumns() const override;
};
