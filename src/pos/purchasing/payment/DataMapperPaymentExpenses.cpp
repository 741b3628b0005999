#include "pos/purchasing/payment/DataMapperPaymentExpenses.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/purchasing/payment/DataMapperPayment.h"

DataMapperPaymentExpenses::DataMapperPaymentExpenses(DataMapperPayment* payments, const ItemPartners& partners)
    : ItemLineMapper(payments)
{
    setName("payment expense");
    metaData()->setTableName("payment_expense");
    documentColumn("payment_id", "PaymentId", payments);
    itemColumn(partners);
    column("qty", "integer not null", "Qty");
    moneyColumns("unit_price", "UnitPrice");
    moneyColumns("discount", "Discount");
    moneyColumns("amount", "Amount");
}

KorEntity* DataMapperPaymentExpenses::createEntity() { return new EntityPaymentExpenses(entityParent()); }

QStringList DataMapperPaymentExpenses::indexStatements() const { return lineIndexes("qty"); }
