#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperBusiness;
class DataMapperPermission;
class EntityBusiness;
class EntityPermission;

/** The service of the table of rights: which services there are and what in them needs a right. */
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
