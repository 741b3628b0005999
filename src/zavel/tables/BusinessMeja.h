#pragma once

#include "app/persistence/AppMasterService.h"
#include "zavel/tables/EntityMeja.h"

class DataMapperMeja;

/** The service of the restaurant's tables. */
class BusinessMeja final : public AppMasterService<EntityMeja>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_MEJA, UPDATE_MEJA, DELETE_MEJA };
    Q_ENUM(PERMISSIONS)

    BusinessMeja(QObject* parent, DataMapperMeja* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
};
