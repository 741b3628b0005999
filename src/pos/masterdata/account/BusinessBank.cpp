#include "pos/masterdata/account/BusinessBank.h"

#include "pos/masterdata/account/DataMapperBank.h"

BusinessBank::BusinessBank(QObject* parent, DataMapperBank* mapper) : AppMasterService("Bank", mapper, parent) {}

QList<KorPermission> BusinessBank::getPermissions() const
{
    return {{INSERT_BANK, tr("Insert bank")}, {UPDATE_BANK, tr("Update bank")}, {DELETE_BANK, tr("Delete bank")}};
}
