#include "purchasing/acquisition/BusinessPurchases.h"

#include "purchasing/acquisition/DataMapperAcquisition.h"

BusinessPurchases::BusinessPurchases(QObject* parent, DataMapperAcquisition* purchases)
    : KorBusinessLogic("Purchases", purchases, parent), m_purchases(purchases)
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

bool BusinessPurchases::clearTransactions() { return clearTables({m_purchases->lineMapper(), m_purchases}); }
