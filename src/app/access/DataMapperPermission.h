#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperBusiness;
class EntityPermission;

/** The operations that need a right, in the table "permissions". */
class DataMapperPermission final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperPermission(QObject* parent, DataMapperBusiness* businesses);

    [[nodiscard]] EntityPermission* findByKey(int key, int businessId);
    [[nodiscard]] QList<KorEntity*> findByBusiness(int businessId);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
