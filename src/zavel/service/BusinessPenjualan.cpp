#include "zavel/service/BusinessPenjualan.h"

#include "app/persistence/AppDocumentMapper.h"
#include "kor/business/KorServiceTransaction.h"

// The general part. Operations for one kind of sale or payment are defined in the folder of that kind.

BusinessPenjualan::BusinessPenjualan(QObject* parent, KorDataMapper* mapper, const Mappers& mappers)
    : KorBusinessLogic("Sales", mapper, parent), m_mappers(mappers)
{}

QList<KorPermission> BusinessPenjualan::getPermissions() const
{
    return {{TAMBAH_PESANAN, tr("Add New Order")},
            {UBAH_PESANAN, tr("Edit an Order")},
            {HAPUS_PESANAN, tr("Delete an Order")},
            {SAVE_INVOICE, tr("Save an Invoice")},
            {SET_KITCHEN_STATUS, tr("Set Kitchen Status")},
            {BAYAR_PIUTANG, tr("Pay for an Accounts Receivable")},
            {UPDATE_PIUTANG, tr("Update an Accounts Receivable")},
            {BAYAR_KOMISI_AGEN, tr("Pay for Agent Commission")},
            {UPDATE_BAYAR_KOMISI_AGEN, tr("Update Agent Commission Payment")},
            {DELETE_SALES, tr("Delete a Sales Order")},
            {DELETE_PIUTANG, tr("Delete Accounts Receivable")},
            {HAPUS_BAYAR_KOMISI, tr("Delete Agent Commission Payment")}};
}

bool BusinessPenjualan::clearTransactions()
{
    for (KorDataMapper* mapper : m_mappers.transactions) {
        if (!written(mapper->truncate(true), mapper, "clearTransactions"))
            return false;
    }
    return true;
}

bool BusinessPenjualan::removeSettlement(AppDocumentMapper* settlements, KorEntity* payment)
{
    AppLineMapper* lines = settlements->lineMapper();
    const auto removeAll = [&] {
        return written(lines->removeByDocument(payment->getId()), lines, "remove") &&
               written(settlements->remove(payment), settlements, "remove");
    };
    return inOneTransaction(*this, "remove", removeAll, {}, {settlements->removalLockOf(payment->getId())});
}
