#include "pos/masterdata/unit/BusinessSatuan.h"

#include "pos/masterdata/unit/DataMapperSatuan.h"

BusinessSatuan::BusinessSatuan(QObject* parent, DataMapperSatuan* mapper) : AppMasterService("Unit", mapper, parent) {}

QList<KorPermission> BusinessSatuan::getPermissions() const { return {{MANAGE_SATUAN, tr("Manage unit")}}; }
