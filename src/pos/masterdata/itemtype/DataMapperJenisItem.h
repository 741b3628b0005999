#pragma once

#include "app/persistence/AppMasterMapper.h"

/** The item types, in the table "jenis_item". */
class DataMapperJenisItem final : public AppMasterMapper
{
    Q_OBJECT

public:
    explicit DataMapperJenisItem(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
};
