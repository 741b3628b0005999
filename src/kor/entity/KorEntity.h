#pragma once

#include "kor/entity/KorProperty.h"
#include "kor/entity/KorStamp.h"

#include <QObject>

/** Base of all persisted records: the id, version and created/updated fields that every table has. */
class KorEntity : public QObject
{
    Q_OBJECT
    KOR_PROPERTY(int, Id, KorNoValue)
    KOR_PROPERTY(int, CreatedBy, KorNoValue)
    Q_PROPERTY(QDateTime CreatedTime READ getCreatedTime WRITE setCreatedTime)
    KOR_PROPERTY(int, UpdatedBy, KorNoValue)
    Q_PROPERTY(QDateTime UpdatedTime READ getUpdatedTime WRITE setUpdatedTime)
    KOR_PROPERTY(int, Version, 1)

public:
    explicit KorEntity(QObject* parent = nullptr) : QObject(parent) {}

    [[nodiscard]] QDateTime getCreatedTime() const { return m_createdTime.toDateTime(); }
    void setCreatedTime(const QDateTime& moment) { setCreatedTime(KorStamp(moment)); }
    void setCreatedTime(const KorStamp& stamp) { m_createdTime = stamp; }
    [[nodiscard]] QDateTime getUpdatedTime() const { return m_updatedTime.toDateTime(); }
    void setUpdatedTime(const QDateTime& moment) { setUpdatedTime(KorStamp(moment)); }
    void setUpdatedTime(const KorStamp& stamp) { m_updatedTime = stamp; }

    /** True if the record has a row: after its first insert. */
    [[nodiscard]] bool isSaved() const { return m_Id != KorNoValue; }

    /**
     * The id of an insert whose commit was not confirmed because the connection was lost. If a row with this id exists,
     * the record was saved after all. KorNoValue if nothing is uncertain.
     */
    [[nodiscard]] int uncertainId() const { return m_uncertainId; }
    void setUncertainId(int id) { m_uncertainId = id; }

private:
    KorStamp m_createdTime;
    KorStamp m_updatedTime;
    int m_uncertainId = KorNoValue;
};
