#include "app/access/BusinessUserAccess.h"

#include "app/access/DataMapperAccess.h"
#include "app/access/EntityAccess.h"
#include "app/context/AppContext.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"

BusinessUserAccess::BusinessUserAccess(QObject* parent, DataMapperAccess* mapper)
    : KorBusinessLogic("User Access", mapper, parent), m_access(mapper)
{}

QList<KorPermission> BusinessUserAccess::getPermissions() const
{
    return {{UPDATE_USER_ACCESS, tr("Update user access")}};
}

bool BusinessUserAccess::setGrant(EntityUserGroup* group, EntityPermission* permission, int grant)
{
    clearErrors();
    EntityAccess* stored = findAccess(group->getId(), permission->getId());
    if (hasError())
        return false;
    if (stored) {
        stored->setGrant(grant);
        return update(stored);
    }
    EntityAccess access;
    access.setGroup(group);
    access.setPermission(permission);
    access.setGrant(grant);
    return insert(&access);
}

EntityAccess* BusinessUserAccess::findAccess(int groupId, int permissionId)
{
    return read(m_access->findAccess(groupId, permissionId), m_access, "findAccess");
}

QList<KorEntity*> BusinessUserAccess::findByGroup(int groupId)
{
    return read(m_access->findByGroup(groupId), m_access, "findByGroup");
}

bool BusinessUserAccess::loadAccess(const EntityUser* user)
{
    AppContext* context = AppContext::instance();
    AppContext::Rights* rights = context->userRights();
    AppContext::Captions* captions = context->accessCaptions();
    if (!rights || !captions || !user->getGroup())
        return true;

    clearErrors();
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const QList<KorEntity*> rows = read(m_access->findByGroup(user->getGroup()->getId()), m_access, "loadAccess");
    for (const auto* access : castAll<EntityAccess>(rows)) {
        const EntityPermission* permission = access->getPermission();
        const QString business = permission->getBusiness()->getName();
        const int key = permission->getPermissionKey();
        rights->insert(business, {key, access->getGrant()});
        captions->insert(business + QString::number(key), permission->getPermissionName());
    }
    return !hasError();
}
