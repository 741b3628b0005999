#pragma once

#include <QObject>

class KorDataMapper;

/**
 * One join of a mapper's SELECT, and the foreign key that follows from it. A local column with a dot stands on an
 * earlier join or is qualified on purpose; it is copied as it is and gives no foreign key.
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

    /** The name under which the statement speaks of the joined table: the alias, or else the table itself. */
    [[nodiscard]] QString targetName() const;
    /** The clause, with its leading blank, as it stands behind "from" and the own table's name. */
    [[nodiscard]] QString clause(const QString& ownTable) const;

private:
    KorDataMapper* m_mapper;
    QString m_joinType;
    QString m_localColumn;
    QString m_remoteColumn;
    QString m_propertyName;
    QString m_alias;
};
