#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/settlement/EntitySettlement.h"
#include "pos/masterdata/member/EntityMember.h"
#include "zavel/receivable/EntityPiutangDetail.h"

/** A member's later payment of open invoices. */
class EntityPiutang : public EntityPartSettlement, public AppDocumentLines<EntityPiutangDetail>
{
    Q_OBJECT
    KOR_REFERENCE(EntityMember, Member)

public:
    using EntityPartSettlement::EntityPartSettlement;
};
