#pragma once

#include "app/persistence/AppDataMapper.h"

class EntityDataPerusahaan;

/** The company profile, the one row of the table "data_perusahaan". */
class DataMapperDataPerusahaan final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperDataPerusahaan(QObject* parent);

    KorEntity* createEntity() override;

    [[nodiscard]] EntityDataPerusahaan* findFirst();
};
