#pragma once

#include "pos/masterdata/item/ItemLineMapper.h"

class DataMapperPurchaseOrder;

/** The lines of purchase orders, in the table "purchase_order_detail". */
class DataMapperPurchaseOrderDetail final : public ItemLineMapper
{
    Q_OBJECT

public:
    DataMapperPurchaseOrderDetail(DataMapperPurchaseOrder* orders, const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
