#include "zavel/tables/BusinessMeja.h"

#include "zavel/tables/DataMapperMeja.h"

BusinessMeja::BusinessMeja(QObject* parent, DataMapperMeja* mapper) : AppMasterService("Table", mapper, parent) {}

QList<KorPermission> BusinessMeja::getPermissions() const
{
    return {{INSERT_MEJA, tr("Add table")}, {UPDATE_MEJA, tr("Update table")}, {DELETE_MEJA, tr("Delete table")}};
}
