#pragma once

#include "app/persistence/AppDataMapper.h"

class EntityBusiness;

/** The services by name, in the table "business". */
class DataMapperBusiness final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperBusiness(QObject* parent);

    [[nodiscard]] EntityBusiness* findByName(const QString& name);
    [[nodiscard]] QList<KorEntity*> findAll();

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
};
