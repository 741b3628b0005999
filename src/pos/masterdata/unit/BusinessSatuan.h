#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/unit/EntitySatuan.h"

class DataMapperSatuan;

/** The service of the units; one right covers adding, editing and deleting. */
class BusinessSatuan final : public AppMasterService<EntitySatuan>
{
    Q_OBJECT

public:
    enum PERMISSIONS { MANAGE_SATUAN };
    Q_ENUM(PERMISSIONS)

    BusinessSatuan(QObject* parent, DataMapperSatuan* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
};
