#pragma once

#include "app/persistence/AppMasterMapper.h"

/** The restaurant's tables, in the table "meja". */
class DataMapperMeja final : public AppMasterMapper
{
    Q_OBJECT

public:
    explicit DataMapperMeja(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
};
