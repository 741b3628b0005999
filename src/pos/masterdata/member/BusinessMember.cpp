#include "pos/masterdata/member/BusinessMember.h"

#include "pos/masterdata/member/DataMapperMember.h"

BusinessMember::BusinessMember(QObject* parent, DataMapperMember* mapper) : AppMasterService("Member", mapper, parent)
{}

QList<KorPermission> BusinessMember::getPermissions() const
{
    return {{INSERT_MEMBER, tr("Insert member")},
            {UPDATE_MEMBER, tr("Update member")},
            {DELETE_MEMBER, tr("Delete member")}};
}
