#include "masterdata/jenisitem/BusinessJenisItem.h"

#include "masterdata/jenisitem/DataMapperJenisItem.h"

BusinessJenisItem::BusinessJenisItem(QObject* parent, DataMapperJenisItem* mapper)
    : AppMasterService("Item Type", mapper, parent)
{}

QList<KorPermission> BusinessJenisItem::getPermissions() const { return {{MANAGE_JENISITEM, tr("Manage item type")}}; }
