#pragma once

#include "kor/entity/KorColumnMap.h"

#include <QList>
#include <QObject>

/** What a mapper knows of its table: the name, its own columns in order, and the six that every table has. */
class KorMetaDataMap : public QObject
{
    Q_OBJECT

public:
    explicit KorMetaDataMap(QObject* parent = nullptr);

    [[nodiscard]] const QString& tableName() const { return m_tableName; }
    void setTableName(const QString& tableName) { m_tableName = tableName; }
    [[nodiscard]] const QList<KorColumnMap*>& columns() const { return m_columns; }
    [[nodiscard]] const QList<KorColumnMap*>& baseColumns() const { return m_baseColumns; }

    /** The order of the calls is the order of the columns in every statement. */
    void addColumn(const QString& columnName, const QString& sqlType, const QString& propertyPath);

private:
    void addBaseColumn(const QString& columnName, const QString& sqlType, const QString& propertyPath);

    QString m_tableName;
    QList<KorColumnMap*> m_columns;
    QList<KorColumnMap*> m_baseColumns;
};
