#include "masterdata/satuan/BusinessSatuan.h"

#include "masterdata/satuan/DataMapperSatuan.h"

BusinessSatuan::BusinessSatuan(QObject* parent, DataMapperSatuan* mapper) : AppMasterService("Unit", mapper, parent) {}

QList<KorPermission> BusinessSatuan::getPermissions() const { return {{MANAGE_SATUAN, tr("Manage unit")}}; }
