#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperAccess;
class EntityAccess;
class EntityPermission;
class EntityUser;
class EntityUserGroup;

/** The service of the rights that the groups have. */
class BusinessUserAccess final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { UPDATE_USER_ACCESS };
    Q_ENUM(PERMISSIONS)

    BusinessUserAccess(QObject* parent, DataMapperAccess* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /** Changes the group's right or gives it one; see EntityAccess::GrantType. */
    bool setGrant(EntityUserGroup* group, EntityPermission* permission, int grant);
    [[nodiscard]] EntityAccess* findAccess(int groupId, int permissionId);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);
    /** Puts the rights of the user's group into the context; they hold until the next login. */
    bool loadAccess(const EntityUser* user);

private:
    DataMapperAccess* m_access;
};
