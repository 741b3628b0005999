#include "kor/entity/KorMetaDataMap.h"

KorMetaDataMap::KorMetaDataMap(QObject* parent) : QObject(parent)
{
    addBaseColumn("id", "bigserial primary key", "Id");
    addBaseColumn("createdBy", "integer  default NULL", "CreatedBy");
    addBaseColumn("createdTime", "timestamp default NULL", "CreatedTime");
    addBaseColumn("updatedBy", "integer default NULL", "UpdatedBy");
    addBaseColumn("updatedTime", "timestamp default NULL", "UpdatedTime");
    addBaseColumn("version", "integer default NULL", "Version");
}

void KorMetaDataMap::addColumn(const QString& columnName, const QString& sqlType, const QString& propertyPath)
{
    m_columns.append(new KorColumnMap(columnName, sqlType, propertyPath, this));
}

void KorMetaDataMap::addBaseColumn(const QString& columnName, const QString& sqlType, const QString& propertyPath)
{
    m_baseColumns.append(new KorColumnMap(columnName, sqlType, propertyPath, this));
}
