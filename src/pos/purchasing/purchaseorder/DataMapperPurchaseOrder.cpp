#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrderDetail.h"

DataMapperPurchaseOrder::DataMapperPurchaseOrder(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers,
                                                 DataMapperBank* accounts, ItemPartners partners)
    : PurchasingDocumentMapper(parent, keys)
{
    setName("purchase order");
    metaData()->setTableName("purchase_order");
    column("no", "varchar(50) not null", "No");
    column("purchase_date", "timestamp not NULL", "Date");
    reference("supplier_id", "integer not NULL", "Supplier", suppliers, "inner");
    column("status_id", "integer not NULL", "Status");
    column("ship_date", "timestamp not NULL", "ShipDate");
    moneyColumns("deposit", "Deposit");
    moneyColumns("sub_total", "SubTotal");
    column("disc_perc", "numeric not NULL", "DiscountPercentage");
    moneyColumns("discount", "Discount");
    column("tax_perc", "numeric not NULL", "TaxPercentage");
    moneyColumns("tax", "Tax");
    moneyColumns("grandtotal", "GrandTotal");
    column("note", "text NULL", "Note");
    reference("bank_id", "integer null", "Bank", accounts, "left");
    column("norek", "varchar(20)  null", "NoRek");
    setLineMapper(new DataMapperPurchaseOrderDetail(this, partners));
}

KorEntity* DataMapperPurchaseOrder::createEntity() { return new EntityPurchaseOrder(entityParent()); }

QStringList DataMapperPurchaseOrder::indexStatements() const
{
    return {index("purchase_date", "(purchase_date)"), index("supplier_id", "(supplier_id)"),
            index("bank_id", "(bank_id)")};
}

QList<EntityPurchaseOrder*> DataMapperPurchaseOrder::getOpenBySupplier(const EntitySupplier* supplier)
{
    KorConditions conditions;
    conditions.equals("purchase_order.supplier_id", supplier->getId());
    for (int done : {EntityPurchaseOrder::RECEIVED, EntityPurchaseOrder::CANCELED, EntityPurchaseOrder::CLOSED})
        conditions.differs("purchase_order.status_id", done);
    conditions.ascending("purchase_order.purchase_date").ascending("purchase_order.id");
    return castAll<EntityPurchaseOrder>(findMany(conditions));
}

PurchasingColumns DataMapperPurchaseOrder::filterColumns() const
{
    return {tableName(), "purchase_date", "status_id", "no", {}};
}

const AppDocumentMapper::Messages& DataMapperPurchaseOrder::messages() const
{
    static const Messages texts{tr("error: insert PO failed"), tr("error: insert PO detail failed"),
                                tr("error: update PO failed"), tr("error: update PO detail failed")};
    return texts;
}
