#include "pos/purchasing/purchase/DataMapperAcquisitionDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"
#include "pos/purchasing/purchase/DataMapperAcquisitionDetailMigration11.h"

DataMapperAcquisitionDetail::DataMapperAcquisitionDetail(DataMapperAcquisition* purchases, KorDataMapper* orderLines,
                                                         const ItemPartners& partners)
    : ItemLineMapper(purchases)
{
    setName("acquisition detail");
    metaData()->setTableName("acquisition_detail");
    documentColumn("acquisition_id", "AcquisitionId", purchases);
    itemColumn(partners);
    column("qty", "integer not null", "Qty");
    column("qty_ordered", "integer not null", "QtyOrdered");
    column("po_detail_id", "integer null", "PurchaseOrderDetailId");
    addJoin("PODetailId", orderLines, "left", "po_detail_id", "id");
    moneyColumns("price_each", "PriceEach");
    moneyColumns("discount", "Discount");
    moneyColumns("total_price", "TotalPrice");
    column("discount_percentage", "numeric not null", "DiscountPercentage");
}

KorEntity* DataMapperAcquisitionDetail::createEntity() { return new EntityAcquisitionDetail(entityParent()); }

QStringList DataMapperAcquisitionDetail::indexStatements() const
{
    return lineIndexes("qty") << index("po_detail_id", "(po_detail_id)");
}

QList<KorMigration*> DataMapperAcquisitionDetail::migrations()
{
    return {new DataMapperAcquisitionDetailMigration11(this)};
}
