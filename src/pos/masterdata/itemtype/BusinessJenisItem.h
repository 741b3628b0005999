#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/itemtype/EntityJenisItem.h"

class DataMapperJenisItem;

/** The service of the item types; one right covers adding, editing and deleting. */
class BusinessJenisItem final : public AppMasterService<EntityJenisItem>
{
    Q_OBJECT

public:
    enum PERMISSIONS { MANAGE_JENISITEM };
    Q_ENUM(PERMISSIONS)

    BusinessJenisItem(QObject* parent, DataMapperJenisItem* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
};
