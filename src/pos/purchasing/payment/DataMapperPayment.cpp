#include "pos/purchasing/payment/DataMapperPayment.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/purchasing/payment/DataMapperPaymentExpenses.h"
#include "pos/purchasing/payment/DataMapperPaymentInvoices.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"

DataMapperPayment::DataMapperPayment(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers,
                                     DataMapperBank* accounts, DataMapperAcquisition* purchases, ItemPartners partners)
    : PurchasingDocumentMapper(parent, keys)
{
    setName("payment");
    metaData()->setTableName("payment");
    column("payment_type", "integer not null", "PaymentType");
    reference("supplier_id", "integer not null", "Supplier", suppliers, "inner");
    column("no", "varchar(50) not null", "No");
    column("check_no", "varchar(50) null", "CheckNo");
    column("payment_date", "date not null", "Date");
    column("note", "text NULL", "Note");
    moneyColumns("grandtotal", "GrandTotal");
    reference("bank_id", "integer null", "Bank", accounts, "left");
    column("noref", "varchar(20)  null", "NoRef");
    setLineMapper(new DataMapperPaymentInvoices(this, purchases, accounts));
    m_expenses = new DataMapperPaymentExpenses(this, partners);
}

KorEntity* DataMapperPayment::createEntity() { return new EntityPayment(entityParent()); }

QList<KorDataMapper*> DataMapperPayment::lineMappers() const { return {lineMapper(), m_expenses}; }

PurchasingColumns DataMapperPayment::filterColumns() const
{
    return {tableName(), "payment_date", "payment_type", "no", "check_no"};
}

QStringList DataMapperPayment::indexStatements() const
{
    return {index("payment_date", "(payment_date)"), index("supplier_id", "(supplier_id)"),
            index("bank_id", "(bank_id)")};
}

const AppDocumentMapper::Messages& DataMapperPayment::messages() const
{
    static const Messages texts{
        tr("error: insert Purchase failed"), tr("error: insert payment detail:invoice failed.\r\n"),
        tr("error: update payment invoice failed"), tr("error: update payment invoice failed\r\n")};
    return texts;
}

QList<KorEntity*> DataMapperPayment::linesOf(KorEntity* document) const
{
    auto* payment = static_cast<EntityPayment*>(document);
    return asEntities(payment->invoices().getDetails()) + asEntities(payment->expenses().getDetails());
}

QList<KorEntity*> DataMapperPayment::removedLinesOf(KorEntity* document) const
{
    auto* payment = static_cast<EntityPayment*>(document);
    return asEntities(payment->invoices().getRemovedDetails()) + asEntities(payment->expenses().getRemovedDetails());
}

void DataMapperPayment::readLines(KorEntity* document)
{
    auto* payment = static_cast<EntityPayment*>(document);
    const int id = payment->getId();
    payment->invoices().setDetails(castAll<EntityPaymentInvoices>(lineMapper()->findByDocument(id)));
    payment->expenses().setDetails(castAll<EntityPaymentExpenses>(m_expenses->findByDocument(id)));
}

AppLineMapper* DataMapperPayment::mapperOf(const KorEntity* line) const
{
    if (qobject_cast<const EntityPaymentExpenses*>(line))
        return m_expenses;
    return lineMapper();
}
