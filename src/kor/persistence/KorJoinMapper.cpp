#include "kor/persistence/KorJoinMapper.h"

#include "kor/persistence/KorDataMapper.h"

KorJoinMapper::KorJoinMapper(const QString& propertyName, KorDataMapper* mapper, const QString& joinType,
                             const QString& localColumn, const QString& remoteColumn, const QString& alias,
                             QObject* parent)
    : QObject(parent), m_mapper(mapper), m_joinType(joinType), m_localColumn(localColumn), m_remoteColumn(remoteColumn),
      m_propertyName(propertyName), m_alias(alias)
{}

QString KorJoinMapper::targetName() const { return m_alias.isEmpty() ? m_mapper->tableName() : m_alias; }

QString KorJoinMapper::clause(const QString& ownTable) const
{
    const QString target = m_alias.isEmpty() ? m_mapper->tableName() : m_mapper->tableName() + ' ' + m_alias;
    const QString left = m_localColumn.contains('.') ? m_localColumn : ownTable + '.' + m_localColumn;
    return ' ' + m_joinType + " join " + target + " on " + left + " = " + targetName() + '.' + m_remoteColumn;
}
