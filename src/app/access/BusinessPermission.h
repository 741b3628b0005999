#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperBusiness;
class DataMapperPermission;
class EntityBusiness;
class EntityPermission;

/** The service of the table of permissions: the services, and their operations that need a right. */
class BusinessPermission final : public KorBusinessLogic
{
    Q_OBJECT

public:
    BusinessPermission(QObject* parent, DataMapperPermission* mapper, DataMapperBusiness* businesses);

    [[nodiscard]] QList<KorPermission> getPermissions() const override { return {}; }

    [[nodiscard]] EntityBusiness* getBusinessByName(const QString& name);
    [[nodiscard]] QList<KorEntity*> getBusinesses();
    [[nodiscard]] QList<KorEntity*> getPermissionByBusiness(int businessId);
    [[nodiscard]] EntityPermission* findByKey(int key, int businessId);
    bool insertBusiness(EntityBusiness* business);

private:
    DataMapperPermission* m_permissions;
    DataMapperBusiness* m_businesses;
};
