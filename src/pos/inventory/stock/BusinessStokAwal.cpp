#include "pos/inventory/stock/BusinessStokAwal.h"

#include "app/context/EntityPool.h"
#include "pos/masterdata/item/DataMapperStokAwal.h"
#include "pos/masterdata/item/EntityStokAwal.h"

BusinessStokAwal::BusinessStokAwal(QObject* parent, DataMapperStokAwal* mapper)
    : KorBusinessLogic("Beginning Balance", mapper, parent), m_balances(mapper)
{}

QList<KorPermission> BusinessStokAwal::getPermissions() const
{
    return {{UPDATE_STOK_AWAL, tr("Update Beginning Balance")}};
}

bool BusinessStokAwal::clearTransactions()
{
    return written(m_balances->clearTransactions(), m_balances, "clearTransactions");
}

QList<KorEntity*> BusinessStokAwal::findAll(const QString& code)
{
    return read(m_balances->findAll(code), m_balances, "findall");
}

EntityStokAwal* BusinessStokAwal::findByItemId(int id)
{
    return read(m_balances->findByItemId(id), m_balances, "findByItemId");
}

bool BusinessStokAwal::insert(KorEntity* balance)
{
    if (m_balances->insert(balance))
        return true;
    const QString reason = m_balances->takeError();
    EntityPool read;
    const EntityPoolScope scope(read);
    const EntityItem* item = static_cast<EntityStokAwal*>(balance)->getItem();
    const bool isThere = item && m_balances->findByItemId(item->getId());
    m_balances->clearError();
    addError("insert", isThere ? tr("This item has a beginning balance already, please edit it") : reason);
    return false;
}

bool BusinessStokAwal::enter(EntityStokAwal* balance)
{
    EntityPool read;
    const EntityPoolScope scope(read);
    EntityStokAwal* row = findByItemId(balance->getItem()->getId());
    if (hasError())
        return false;
    if (!row)
        return insert(balance);
    row->setHarga(balance->getHarga());
    row->setJumlah(balance->getJumlah());
    return update(row);
}
