#pragma once

#include "app/persistence/AppMasterMapper.h"

/** The units, in the table "satuan". The name is unique there; that no code comes twice, the form sees to. */
class DataMapperSatuan final : public AppMasterMapper
{
    Q_OBJECT

public:
    explicit DataMapperSatuan(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
};
