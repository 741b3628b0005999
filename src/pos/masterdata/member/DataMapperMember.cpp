#include "pos/masterdata/member/DataMapperMember.h"

#include "pos/masterdata/member/DataMapperMemberMigration11.h"
#include "pos/masterdata/member/EntityMember.h"

DataMapperMember::DataMapperMember(QObject* parent) : ContactMapper(parent)
{
    contactColumns("member", "varchar(255) null");
    column("expired_date", "date null", "ExpiredDate");
    column("discount_percentage", "numeric not null", "DiscountPercentage");
}

KorEntity* DataMapperMember::createEntity() { return new EntityMember(entityParent()); }

QList<KorMigration*> DataMapperMember::migrations()
{
    return {new DataMapperMemberMigration11({widenCodeStatement()})};
}
