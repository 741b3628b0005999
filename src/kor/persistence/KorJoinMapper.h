#pragma once

#include <QObject>

class KorDataMapper;

/**
 * One join of a mapper's SELECT, and the foreign key derived from it. A local column with a dot belongs to an earlier
 * join or is qualified on purpose; it is used unchanged and gives no foreign key.
 */
class KorJoinMapper : public QObject
{
    Q_OBJECT

public:
    KorJoinMapper(const QString& propertyName, KorDataMapper* mapper, const QString& joinType,
                  const QString& localColumn, const QString& remoteColumn, const QString& alias, QObject* parent);

    [[nodiscard]] KorDataMapper* mapper() const { return m_mapper; }
    void setMapper(KorDataMapper* mapper) { m_mapper = mapper; }
    [[nodiscard]] const QString& joinType() const { return m_joinType; }
    void setJoinType(const QString& joinType) { m_joinType = joinType; }
    [[nodiscard]] const QString& localColumn() const { return m_localColumn; }
    void setLocalColumn(const QString& localColumn) { m_localColumn = localColumn; }
    [[nodiscard]] const QString& remoteColumn() const { return m_remoteColumn; }
    void setRemoteColumn(const QString& remoteColumn) { m_remoteColumn = remoteColumn; }
    [[nodiscard]] const QString& propertyName() const { return m_propertyName; }
    void setPropertyName(const QString& propertyName) { m_propertyName = propertyName; }
    [[nodiscard]] const QString& alias() const { return m_alias; }
    void setAlias(const QString& alias) { m_alias = alias; }

    /** The joined table's name in the statement: the alias, or else the table name. */
    [[nodiscard]] QString targetName() const;
    /** The join clause with a leading blank; it follows "from" and the table's own name. */
    [[nodiscard]] QString clause(const QString& ownTable) const;

private:
    KorDataMapper* m_mapper;
    QString m_joinType;
    QString m_localColumn;
    QString m_remoteColumn;
    QString m_propertyName;
    QString m_alias;
};
