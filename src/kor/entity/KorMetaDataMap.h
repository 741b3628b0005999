#pragma once

#include "kor/entity/KorColumnMap.h"

#include <QList>
#include <QObject>

/** Describes a mapper's table: its name, its own columns in order, and the six columns that every table has. */
class KorMetaDataMap : public QObject
{
    Q_OBJECT

public:
    explicit KorMetaDataMap(QObject* parent = nullptr);

    [[nodiscard]] const QString& tableName() const { return m_tableName; }
    void setTableName(const QString& tableName) { m_tableName = tableName; }
    [[nodiscard]] const QList<KorColumnMap*>& columns() const { return m_columns; }
    [[nodiscard]] const QList<KorColumnMap*>& baseColumns() const { return m_baseColumns; }

    /** The order of the calls is the column order in every statement. */
    void addColumn(const QString& columnName, const QString& sqlType, const QString& propertyPath);

private:
    void addBaseColumn(const QString& columnName, const QString& sqlType, const QString& propertyPath);

    QString m_tableName;
    QList<KorColumnMap*> m_columns;
    QList<KorColumnMap*> m_baseColumns;
};
