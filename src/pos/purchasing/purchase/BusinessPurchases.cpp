#include "pos/purchasing/purchase/BusinessPurchases.h"

#include "app/context/EntityPool.h"
#include "pos/inventory/stock/EntityItemHistory.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"

#include <memory>

namespace
{
constexpr int dueAttempts = 5;

const EntityAcquisition& asPurchase(const KorEntity& entity) { return static_cast<const EntityAcquisition&>(entity); }
} // namespace

BusinessPurchases::BusinessPurchases(QObject* parent, DataMapperAcquisition* purchases, DataMapperItemHistory* journal)
    : StockDocumentService("Purchases", purchases, journal, parent), m_purchases(purchases)
{}

QList<KorPermission> BusinessPurchases::getPermissions() const
{
    return {{INSERT_PURCHASE, tr("Insert Purchases")},
            {UPDATE_PURCHASE, tr("Update Purchases")},
            {DELETE_PURCHASE, tr("Delete Purchases")},
            {INSERT_PURCHASE_DETAIL, tr("Insert Purchases Detail")},
            {UPDATE_PURCHASE_DETAIL, tr("Update Purchases Detail")},
            {DELETE_PURCHASE_DETAIL, tr("Delete Purchases Detail")}};
}

QList<EntityAcquisition*> BusinessPurchases::findAll(const PurchasingFilter& filter)
{
    return read(m_purchases->findAll(filter), m_purchases, "findall");
}

EntityAcquisition* BusinessPurchases::findByNo(const QString& no)
{
    return read(m_purchases->findByNo(no), m_purchases, "findByNo");
}

EntityAcquisition* BusinessPurchases::findHeader(int id)
{
    return read(m_purchases->findHeader(id), m_purchases, "findHeader");
}

QList<EntityAcquisition*> BusinessPurchases::getPendingInvoiceBySupplier(const EntitySupplier* supplier)
{
    return read(m_purchases->getPendingInvoiceBySupplier(supplier), m_purchases, "getPendingInvoiceBySupplier");
}

// --- saving --------------------------------------------------------------------------------------------------------

void BusinessPurchases::updateStatus(EntityAcquisition& purchase)
{
    const qint64 paid = qint64(purchase.getAmountPaid()->rawAmount()) + purchase.getOtherPayment()->rawAmount();
    if (purchase.getGrandTotal()->rawAmount() - paid <= 0)
        purchase.setStatus(EntityAcquisition::FULL_PAID);
    else
        purchase.setStatus(paid > 0 ? EntityAcquisition::PARTIALLY_PAID : EntityAcquisition::UNPAID);
}

void BusinessPurchases::beforeSave(KorEntity& purchase) { updateStatus(static_cast<EntityAcquisition&>(purchase)); }

QList<KorEntity*> BusinessPurchases::linesOf(const KorEntity& purchase) const
{
    return asEntities(asPurchase(purchase).getDetails());
}

QList<KorEntity*> BusinessPurchases::removedLinesOf(const KorEntity& purchase) const
{
    return asEntities(asPurchase(purchase).getRemovedDetails());
}

ItemMovement BusinessPurchases::movementOf(const KorEntity& purchase, const KorEntity& line) const
{
    const auto& bought = static_cast<const EntityAcquisitionDetail&>(line);
    return {EntityItemHistory::PURCHASE,
            bought.getId(),
            bought.getItem(),
            bought.getQty(),
            0,
            bought.getPriceEach(),
            asPurchase(purchase).getPurchaseDate(),
            asPurchase(purchase).getNo()};
}

bool BusinessPurchases::remove(KorEntity* purchase)
{
    // The database would also refuse, but with its own message.
    const QString payment = read(m_purchases->paymentNo(purchase->getId()), m_purchases, "remove");
    if (!payment.isEmpty())
        addError("remove", tr("This purchase is paid, please delete the payment first: Payment No: %1").arg(payment));
    return !errors().contains("remove") && StockDocumentService::remove(purchase);
}

bool BusinessPurchases::recalculateDue(int purchaseId)
{
    // If another save comes in between, this one fails on the version: calculate again from the new values.
    for (int attempt = 1; !reckonDue(purchaseId); ++attempt) {
        if (attempt == dueAttempts || !errors().contains("update"))
            return false;
        clearErrors();
    }
    return true;
}

bool BusinessPurchases::reckonDue(int purchaseId)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    // Read again, because others may have saved the purchase. Without lines, so that the update does not change them.
    EntityAcquisition* purchase = read(m_purchases->findHeader(purchaseId), m_purchases, "recalculateDue");
    if (!purchase) {
        if (!errors().contains("recalculateDue"))
            addError("recalculateDue", tr("Can not find entity with id: %1").arg(purchaseId));
        return false;
    }
    const double later = m_purchases->paidLater(purchaseId);
    if (m_purchases->hasError()) {
        takeMapperError(m_purchases, "recalculateDue");
        return false;
    }
    const Money& total = *purchase->getGrandTotal();
    const Money credit(nullptr, later, total.getCurrency());
    Money due(nullptr, 0, total.getCurrency());
    due.setRawAmount(double(total.rawAmount()) - purchase->getAmountPaid()->rawAmount() - credit.rawAmount());
    purchase->setOtherPayment(credit.copy(purchase));
    purchase->setNetDue(due.copy(purchase));
    return update(purchase);
}
