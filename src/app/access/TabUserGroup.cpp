#include "app/access/TabUserGroup.h"

#include "app/access/BusinessUser.h"
#include "app/context/EntityUserGroup.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"

#include <QMessageBox>

TabUserGroup::TabUserGroup(QWidget* parent) : AppFamilyTab({tr("User Groups"), "tblUserGroup", "User Group"}, parent)
{
    refresh();
}

QString TabUserGroup::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure, you want to delete user group: %1")
               .arg(static_cast<const EntityUserGroup*>(entity)->getGroupName()) +
           '?';
}

bool TabUserGroup::asksOnce(int key) const { return key == BusinessUserGroup::DELETE_USER_GROUP; }

bool TabUserGroup::mayDelete(KorEntity* entity)
{
    auto* users = service<BusinessUser>("User");
    KorErrorScope errors(users);
    const bool inUse = !users->findByGroup(entity->getId()).isEmpty();
    if (KorErrorBox::tell(this, errors.take()))
        return false;
    if (inUse)
        QMessageBox::critical(this, tr("Error"),
                              tr("Can not delete user groupd with id: %1, it is still in use").arg(entity->getId()));
    return !inUse;
}
