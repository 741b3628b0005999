#include "app/access/BusinessPermission.h"

#include "app/access/DataMapperBusiness.h"
#include "app/access/DataMapperPermission.h"
#include "app/access/EntityPermission.h"

BusinessPermission::BusinessPermission(QObject* parent, DataMapperPermission* mapper, DataMapperBusiness* businesses)
    : KorBusinessLogic("Permission", mapper, parent), m_permissions(mapper), m_businesses(businesses)
{}

EntityBusiness* BusinessPermission::getBusinessByName(const QString& name)
{
    return read(m_businesses->findByName(name), m_businesses, "getBusinessByName");
}

QList<KorEntity*> BusinessPermission::getBusinesses()
{
    return read(m_businesses->findAll(), m_businesses, "getBusinesses");
}

QList<KorEntity*> BusinessPermission::getPermissionByBusiness(int businessId)
{
    return read(m_permissions->findByBusiness(businessId), m_permissions, "getPermissionByBusiness");
}

EntityPermission* BusinessPermission::findByKey(int key, int businessId)
{
    return read(m_permissions->findByKey(key, businessId), m_permissions, "findByKey");
}

bool BusinessPermission::insertBusiness(EntityBusiness* business)
{
    return written(m_businesses->insert(business), m_businesses, "insertBusiness");
}
