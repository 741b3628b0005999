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
    /** Writes a new picture or a changed one; one without data is refused. */
    bool save(EntityImage* image);
};
