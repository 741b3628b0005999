#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperUserGroup;
class EntityUserGroup;

/** The service of the user groups. */
class BusinessUserGroup final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_USER_GROUP, UPDATE_USER_GROUP, DELETE_USER_GROUP };
    Q_ENUM(PERMISSIONS)

    BusinessUserGroup(QObject* parent, DataMapperUserGroup* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    [[nodiscard]] EntityUserGroup* findByGroupName(const QString& name);
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);

private:
    DataMapperUserGroup* m_groups;
};
