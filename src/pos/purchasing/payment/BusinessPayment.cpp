#include "pos/purchasing/payment/BusinessPayment.h"

#include "kor/business/KorErrorScope.h"
#include "pos/purchasing/payment/DataMapperPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"

namespace
{
const EntityPayment& asPayment(const KorEntity& entity) { return static_cast<const EntityPayment&>(entity); }
} // namespace

BusinessPayment::BusinessPayment(QObject* parent, DataMapperPayment* payments, BusinessPurchases* purchases)
    : PurchasingService("Payment", payments, parent), m_payments(payments), m_purchases(purchases)
{}

QList<KorPermission> BusinessPayment::getPermissions() const
{
    return {{INSERT_PAYMENT, tr("Insert Payment")},
            {UPDATE_PAYMENT, tr("Update Payment")},
            {DELETE_PAYMENT, tr("Delete Payment")}};
}

QList<EntityPayment*> BusinessPayment::findAll(const PurchasingFilter& filter)
{
    return read(m_payments->findAll(filter), m_payments, "findall");
}

EntityPayment* BusinessPayment::findByNo(const QString& no)
{
    return read(m_payments->findByNo(no), m_payments, "findByNo");
}

bool BusinessPayment::updatePurchase(const EntityPayment& payment)
{
    bool done = true;
    const auto lines = payment.invoices().getDetails() + payment.invoices().getRemovedDetails();
    for (const EntityPaymentInvoices* line : lines) {
        KorErrorScope errors(m_purchases);
        if (m_purchases->recalculateDue(line->getAcquisition()->getId()))
            continue;
        addError("updatePurchase", errors.take().trimmed());
        done = false;
    }
    return done;
}

QString BusinessPayment::unfinished() const { return tr("what is still due of the purchases that it pays"); }

bool BusinessPayment::afterSave(const KorEntity& payment, Save) { return updatePurchase(asPayment(payment)); }

QList<KorEntity*> BusinessPayment::linesOf(const KorEntity& payment) const
{
    return asEntities(asPayment(payment).expenses().getDetails()) +
           asEntities(asPayment(payment).invoices().getDetails());
}
