#include "app/access/BusinessUserGroup.h"

#include "app/access/DataMapperUserGroup.h"

BusinessUserGroup::BusinessUserGroup(QObject* parent, DataMapperUserGroup* mapper)
    : KorBusinessLogic("User Group", mapper, parent), m_groups(mapper)
{}

QList<KorPermission> BusinessUserGroup::getPermissions() const
{
    return {{INSERT_USER_GROUP, tr("Create a new user group")},
            {UPDATE_USER_GROUP, tr("Update user group")},
            {DELETE_USER_GROUP, tr("Delete user group")}};
}

EntityUserGroup* BusinessUserGroup::findByGroupName(const QString& name)
{
    return read(m_groups->findByGroupName(name), m_groups, "findByGroupName");
}

QList<KorEntity*> BusinessUserGroup::findAll(const QString& filter)
{
    return read(m_groups->findAll(filter), m_groups, "findall");
}
