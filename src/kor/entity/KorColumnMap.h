#pragma once

#include <QObject>

/** One column of a table: its name, the property path of its value, and its SQL type for CREATE TABLE. */
class KorColumnMap : public QObject
{
    Q_OBJECT

public:
    KorColumnMap(const QString& columnName, const QString& sqlType, const QString& propertyPath,
                 QObject* parent = nullptr);

    [[nodiscard]] const QString& columnName() const { return m_columnName; }
    void setColumnName(const QString& columnName) { m_columnName = columnName; }
    [[nodiscard]] const QString& propertyPath() const { return m_propertyPath; }
    void setPropertyPath(const QString& propertyPath);
    [[nodiscard]] const QString& sqlType() const { return m_sqlType; }
    void setSqlType(const QString& sqlType) { m_sqlType = sqlType; }

    /** The path in UTF-8, as QObject::property() needs it; converted once instead of for every row. */
    [[nodiscard]] const QByteArray& propertyPathUtf8() const { return m_propertyPathUtf8; }

private:
    QString m_columnName;
    QString m_propertyPath;
    QString m_sqlType;
    QByteArray m_propertyPathUtf8;
};

/**
 * The value of the column for this record: the property at the end of the path. NULL if a nested record on the path is
 * missing or the value equals KorNoValue. A date-time is formatted as "yyyy-MM-dd hh:mm:ss".
 */
[[nodiscard]] QVariant columnValue(const KorColumnMap& column, const QObject* record);
