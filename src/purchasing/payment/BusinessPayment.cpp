#include "purchasing/payment/BusinessPayment.h"

#include "purchasing/payment/DataMapperPayment.h"

BusinessPayment::BusinessPayment(QObject* parent, DataMapperPayment* payments)
    : KorBusinessLogic("Payment", payments, parent), m_payments(payments)
{}

QList<KorPermission> BusinessPayment::getPermissions() const
{
    return {{INSERT_PAYMENT, tr("Insert Payment")},
            {UPDATE_PAYMENT, tr("Update Payment")},
            {DELETE_PAYMENT, tr("Delete Payment")}};
}

bool BusinessPayment::clearTransactions() { return clearTables(m_payments->lineMappers() << m_payments); }
