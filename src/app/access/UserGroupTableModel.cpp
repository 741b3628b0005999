#include "app/access/UserGroupTableModel.h"

#include "app/context/EntityUserGroup.h"

UserGroupTableModel::UserGroupTableModel(const QList<KorEntity*>& groups, QObject* parent)
    : AppEntityModel(groups, parent)
{
    addId(tr("ID"));
    addText(tr("Name"), &EntityUserGroup::getGroupName);
    addField<EntityUserGroup>(QMetaType::QDateTime, tr("Created Date"),
                              [this](const EntityUserGroup& group) { return dateTimeText(group.getCreatedTime()); });
}
