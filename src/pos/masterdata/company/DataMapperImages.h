#pragma once

#include "app/persistence/AppDataMapper.h"

class EntityImage;

/** Pictures, in the table "images". */
class DataMapperImages final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperImages(QObject* parent);

    KorEntity* createEntity() override;

    [[nodiscard]] EntityImage* findByName(const QString& name);
    /** Inserts or updates a picture; false if it has no data. */
    bool save(EntityImage* image);
};
