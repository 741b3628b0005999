#include "pos/purchasing/purchase/DataMapperAcquisition.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/inventory/stock/StockMovements.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/purchasing/purchase/DataMapperAcquisitionDetail.h"
#include "pos/purchasing/purchase/DataMapperAcquisitionMigration11.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"

DataMapperAcquisition::DataMapperAcquisition(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers,
                                             DataMapperBank* accounts, DataMapperPurchaseOrder* orders,
                                             ItemPartners partners)
    : PurchasingDocumentMapper(parent, keys)
{
    setName("acquisition");
    metaData()->setTableName("acquisition");
    column("purchase_date", "date not null", "PurchaseDate");
    column("due_date", "date not null", "DueDate");
    column("note", "text null", "Note");
    reference("supplier_id", "integer not null", "Supplier", suppliers, "inner");
    column("no", "varchar(50) not null", "No");
    column("invoice_no", "varchar(100) null", "InvoiceNo");
    column("waiting_bill", "boolean not NULL", "IsWaitingOnBill");
    column("apply_to_po", "boolean not NULL", "IsApplyToPurchaseOrder");
    column("po_id", "integer null", "PurchaseOrderId");
    moneyColumns("sub_total", "Subtotal");
    column("disc_perc", "numeric not NULL", "DiscountPercentage");
    moneyColumns("discount", "Discount");
    column("tax_perc", "numeric not NULL", "TaxPercentage");
    moneyColumns("tax", "Tax");
    moneyColumns("grandtotal", "GrandTotal");
    moneyColumns("amount_paid", "AmountPaid");
    moneyColumns("net_due", "NetDue");
    moneyColumns("other_payment", "OtherPayment");
    column("status", "integer not NULL", "Status");
    reference("bank_id", "integer null", "Bank", accounts, "left");
    addJoin("PurchaseOrder", orders, "left", "po_id", "id");
    setLineMapper(new DataMapperAcquisitionDetail(this, orders->lineMapper(), partners));
}

KorEntity* DataMapperAcquisition::createEntity() { return new EntityAcquisition(entityParent()); }

QStringList DataMapperAcquisition::indexStatements() const
{
    return {index("purchase_date", "(purchase_date)"), index("open_supplier", "(supplier_id) WHERE status <> 1"),
            index("no", "(no)"), index("bank_id", "(bank_id)"), index("po_id", "(po_id)")};
}

QList<EntityAcquisition*> DataMapperAcquisition::getPendingInvoiceBySupplier(const EntitySupplier* supplier)
{
    return castAll<EntityAcquisition>(findMany(KorConditions()
                                                   .equals("acquisition.supplier_id", supplier->getId())
                                                   .differs("acquisition.status", EntityAcquisition::FULL_PAID)
                                                   .ascending("acquisition.due_date")
                                                   .ascending("acquisition.id")));
}

int DataMapperAcquisition::getQuantityAcquired(const KorEntity* item, const QDate& date)
{
    return getQuantityAcquired(item, QDate(), date);
}

int DataMapperAcquisition::getQuantityAcquired(const KorEntity* item, const QDate& from, const QDate& to)
{
    int quantity = 0;
    KorQuery query;
    if (!StockMovements::quantity(query, StockMovements::Acquired, item->getId(), from, to, quantity))
        setError(query.failure());
    return quantity;
}

QString DataMapperAcquisition::purchaseNo(int orderId)
{
    KorQuery query;
    const bool done =
        execute(query, "select no from acquisition where po_id = :order order by id limit 1", {{":order", orderId}});
    return done && query.next() ? query.value(0).toString() : QString();
}

double DataMapperAcquisition::paidLater(int purchaseId)
{
    KorQuery query;
    // Every note counts, also a cancelled one, but not one without an account, which no list shows.
    const bool done = execute(query,
                              "select coalesce((select sum(amount_paid_amount) from credit_note where acquisition_id = "
                              ":purchase and bank_id is not null), 0) + coalesce((select sum(amount_paid_amount) from "
                              "payment_invoice where acquisition_id = :purchase), 0)",
                              {{":purchase", purchaseId}});
    return done && query.next() ? query.value(0).toDouble() : 0;
}

QString DataMapperAcquisition::paymentNo(int purchaseId)
{
    KorQuery query;
    const bool done = execute(query,
                              "select payment.no from payment inner join payment_invoice on payment.id = payment_id "
                              "where acquisition_id = :purchase order by payment.id limit 1",
                              {{":purchase", purchaseId}});
    return done && query.next() ? query.value(0).toString() : QString();
}

PurchasingColumns DataMapperAcquisition::filterColumns() const
{
    return {tableName(), "purchase_date", "status", "no", "acquisition.invoice_no"};
}

QList<KorMigration*> DataMapperAcquisition::migrations() { return {new DataMapperAcquisitionMigration11(nullptr)}; }

const AppDocumentMapper::Messages& DataMapperAcquisition::messages() const
{
    static const Messages texts{tr("error: insert Purchase failed"), tr("error: insert Purchase detail failed.\r\n"),
                                tr("error: update acquisition failed"),
                                tr("error: update acquisition detail failed\r\n")};
    return texts;
}
