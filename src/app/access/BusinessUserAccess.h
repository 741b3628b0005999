#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperAccess;
class EntityAccess;
class EntityPermission;
class EntityUser;
class EntityUserGroup;

/** The service of the rights of the user groups. */
class BusinessUserAccess final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { UPDATE_USER_ACCESS };
    Q_ENUM(PERMISSIONS)

    BusinessUserAccess(QObject* parent, DataMapperAccess* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /** Changes the group's right or adds one; see EntityAccess::GrantType. */
    bool setGrant(EntityUserGroup* group, EntityPermission* permission, int grant);
    [[nodiscard]] EntityAccess* findAccess(int groupId, int permissionId);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);
    /** Loads the rights of the user's group into the context. They are not read again until the next login. */
    bool loadAccess(const EntityUser* user);

private:
    DataMapperAccess* m_access;
};
