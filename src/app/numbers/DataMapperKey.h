#pragma once

#include "app/persistence/AppDataMapper.h"

class EntityKey;

/** The running numbers, in the table "keytable". */
class DataMapperKey final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperKey(QObject* parent);

    /**
     * Draws a number: returns the row with GeneratedNo set, which the caller may delete, or null. It takes no lock: if
     * another workstation draws at the same time, one of the two gets null and an error text.
     */
    [[nodiscard]] EntityKey* getKey(const QString& keyName);
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);

    KorEntity* createEntity() override;
};
