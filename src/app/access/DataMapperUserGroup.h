#pragma once

#include "app/persistence/AppDataMapper.h"

class EntityUserGroup;

/** The user groups, in the table "user_group". */
class DataMapperUserGroup final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperUserGroup(QObject* parent);

    /** Ignores case. */
    [[nodiscard]] EntityUserGroup* findByGroupName(const QString& name);
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);

    KorEntity* createEntity() override;
};
