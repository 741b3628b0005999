#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/member/EntityMember.h"

class DataMapperMember;

/** The service of the members. */
class BusinessMember final : public AppMasterService<EntityMember>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_MEMBER, UPDATE_MEMBER, DELETE_MEMBER };
    Q_ENUM(PERMISSIONS)

    BusinessMember(QObject* parent, DataMapperMember* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
};
