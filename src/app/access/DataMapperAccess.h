#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperBusiness;
class DataMapperPermission;
class DataMapperUserGroup;
class EntityAccess;

/**
 * The rights of the groups, in the table "access". A record is read with its permission and the permission's service.
 */
class DataMapperAccess final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperAccess(QObject* parent, DataMapperUserGroup* groups, DataMapperPermission* permissions,
                     DataMapperBusiness* businesses);

    [[nodiscard]] EntityAccess* findAccess(int groupId, int permissionId);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
