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
     * Draws a number: the row with GeneratedNo set, which the caller may delete, or null. No lock is taken: when
     * another workstation draws at the same time one of the two gets null and the reason in the error text.
     */
    [[nodiscard]] EntityKey* getKey(const QString& keyName);
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);

    KorEntity* createEntity() override;
};
