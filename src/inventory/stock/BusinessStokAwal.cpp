#include "inventory/stock/BusinessStokAwal.h"

#include "inventory/stock/DataMapperStokAwal.h"

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
