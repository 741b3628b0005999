#include "pos/purchasing/payment/DataMapperPaymentInvoices.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/purchasing/payment/DataMapperPayment.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"

DataMapperPaymentInvoices::DataMapperPaymentInvoices(DataMapperPayment* payments, DataMapperAcquisition* purchases,
                                                     DataMapperBank* accounts)
    : AppLineMapper(payments)
{
    setName("payment invoice");
    metaData()->setTableName("payment_invoice");
    documentColumn("payment_id", "PaymentId", payments);
    reference("acquisition_id", "integer not null", "Acquisition", purchases, "inner");
    addJoin("Bank", accounts, "left", "acquisition.bank_id", "id");
    moneyColumns("amount_paid", "AmountPaid");
    moneyColumns("amount_due", "AmountDue");
}

KorEntity* DataMapperPaymentInvoices::createEntity() { return new EntityPaymentInvoices(entityParent()); }

QStringList DataMapperPaymentInvoices::indexStatements() const
{
    return {index("payment_id", "(payment_id)"), index("acquisition_id", "(acquisition_id)")};
}
