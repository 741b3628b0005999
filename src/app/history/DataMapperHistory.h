#pragma once

#include "kor/persistence/KorDataMapper.h"

#include <QJsonObject>

/**
 * The journal of saved states, in the table "entities_history", which has no stamps of its own. Nothing writes to it
 * yet: save() stands ready for whoever keeps a journal.
 */
class DataMapperHistory final : public KorDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperHistory(QObject* parent);

    /** Writes the record's present state; the numbering of the operations is the caller's. */
    bool save(KorEntity* entity, int userId, int operationId);
    /** Every property as text, nested records and money as objects, missing ones as null. */
    [[nodiscard]] QJsonObject toJson(KorEntity* entity);
    /** The flat form of a value: every property as text. */
    [[nodiscard]] QJsonObject valueToJson(QObject* value);

    bool createTable(int mode) override;
    KorEntity* createEntity() override;
};
