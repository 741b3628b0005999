#pragma once

#include "kor/entity/KorProperty.h"

#include <QDateTime>
#include <QObject>

/** Base of all persisted records: the id, version and created/updated fields that every table has. */
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

    /** True if the record has a row: after its first insert. */
    [[nodiscard]] bool isSaved() const { return m_Id != KorNoValue; }

    /**
     * The id of an insert whose commit was not confirmed because the connection was lost. If a row with this id exists,
     * the record was saved after all. KorNoValue if nothing is uncertain.
     */
    [[nodiscard]] int uncertainId() const { return m_uncertainId; }
    void setUncertainId(int id) { m_uncertainId = id; }

private:
    int m_uncertainId = KorNoValue;
};
