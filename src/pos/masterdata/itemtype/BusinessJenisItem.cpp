#include "pos/masterdata/itemtype/BusinessJenisItem.h"

#include "pos/masterdata/itemtype/DataMapperJenisItem.h"

BusinessJenisItem::BusinessJenisItem(QObject* parent, DataMapperJenisItem* mapper)
    : AppMasterService("Item Type", mapper, parent)
{}

QList<KorPermission> BusinessJenisItem::getPermissions() const { return {{MANAGE_JENISITEM, tr("Manage item type")}}; }
