#include "pos/masterdata/member/TabMember.h"

TabMember::TabMember(QWidget* parent) : AppFamilyTab({tr("Members"), "tblMember", "Member"}, parent) { refresh(); }

QString TabMember::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this member: %1 ?")
        .arg(static_cast<const EntityMember*>(entity)->getNama());
}
