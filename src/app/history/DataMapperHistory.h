#pragma once

#include "kor/persistence/KorDataMapper.h"

#include <QJsonObject>

/**
 * Saved states of records, in the table "entities_history", which has no created and updated columns. Nothing calls
 * save() yet.
 */
class DataMapperHistory final : public KorDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperHistory(QObject* parent);

    /** Saves the record's current state. The caller defines the operation ids. */
    bool save(KorEntity* entity, int userId, int operationId);
    /** Every property as text; nested records and money as objects, null pointers as null. */
    [[nodiscard]] QJsonObject toJson(KorEntity* entity);
    /** Every property of the value as text. */
    [[nodiscard]] QJsonObject valueToJson(QObject* value);

    bool createTable(int mode) override;
    KorEntity* createEntity() override;
};
