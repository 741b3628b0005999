#pragma once

#include "kor/entity/KorProperty.h"

#include <QDateTime>
#include <QObject>

/** Base of all persisted records: the identity, the stamps and the version that every table carries. */
class KorEntity : public QObject
{
    Q_OBJECT
    KOR_PROPERTY(int, Id, KorNoValue)
    KOR_PROPERTY(int, CreatedBy, KorNoValue)
    KOR_PROPERTY(QDateTime, CreatedTime, QDateTime())
    KOR_PROPERTY(int, UpdatedBy, KorNoValue)
    KOR_PROPERTY(QDateTime, UpdatedTime, QDateTime())
    KOR_PROPERTY(int, Version, 1)

public:
    explicit KorEntity(QObject* parent = nullptr) : QObject(parent) {}

    /** True once the record has a row, that is from its first insert on. */
    [[nodiscard]] bool isSaved() const { return m_Id != KorNoValue; }

    /**
     * The id that an insert had drawn when the connection went before the server confirmed it: a row with this id is
     * this record, saved after all. KorNoValue where nothing is uncertain.
     */
    [[nodiscard]] int uncertainId() const { return m_uncertainId; }
    void setUncertainId(int id) { m_uncertainId = id; }

private:
    int m_uncertainId = KorNoValue;
};
