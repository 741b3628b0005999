#pragma once

#include "app/persistence/AppMasterMapper.h"

/** The units, in the table "satuan". The table makes the name unique; only the form checks that the code is unique. */
class DataMapperSatuan final : public AppMasterMapper
{
    Q_OBJECT

public:
    explicit DataMapperSatuan(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
};
