#include "app/access/TabUser.h"

#include "app/context/EntityUser.h"

#include <QPushButton>

TabUser::TabUser(QWidget* parent) : AppFamilyTab({tr("Users"), "tblUser", "User"}, parent)
{
    button("btnAdd")->setObjectName("btnAdd_2");
    refresh();
}

QString TabUser::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure, you want to delete user: %1").arg(static_cast<const EntityUser*>(entity)->getUserName()) +
           '?';
}
