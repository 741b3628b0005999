#include "app/access/TableModelUser.h"

#include "app/context/EntityUser.h"

TableModelUser::TableModelUser(const QList<KorEntity*>& users, QObject* parent) : AppEntityModel(users, parent)
{
    addId(tr("ID"));
    addText(tr("User Name"), &EntityUser::getUserName);
    addText(tr("First Name"), &EntityUser::getFirstName);
    addText(tr("Last Name"), &EntityUser::getLastName);
    addField<EntityUser>(QMetaType::QString, tr("Group"), [](const EntityUser& user) {
        return user.getGroup() ? user.getGroup()->getGroupName() : QString();
    });
    addField<EntityUser>(QMetaType::QDateTime, tr("Created Date"),
                         [this](const EntityUser& user) { return dateTimeText(user.getCreatedTime()); });
}
