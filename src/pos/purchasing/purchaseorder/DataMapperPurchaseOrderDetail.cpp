#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrderDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"

DataMapperPurchaseOrderDetail::DataMapperPurchaseOrderDetail(DataMapperPurchaseOrder* orders,
                                                             const ItemPartners& partners)
    : ItemLineMapper(orders)
{
    setName("purchase order detail");
    metaData()->setTableName("purchase_order_detail");
    documentColumn("purchase_order_id", "PurchaseOrderId", orders);
    itemColumn(partners);
    column("jumlah", "integer not null", "Jumlah");
    moneyColumns("price", "Price");
    moneyColumns("discount", "Discount");
    moneyColumns("total_price", "TotalPrice");
    column("discount_percentage", "numeric not null", "DiscountPercentage");
}

KorEntity* DataMapperPurchaseOrderDetail::createEntity() { return new EntityPurchaseOrderDetail(entityParent()); }

QStringList DataMapperPurchaseOrderDetail::indexStatements() const { return lineIndexes("jumlah"); }
