#pragma once

#include <QObject>

/** One column of a table: its name, the property path that fills it, and its type text for CREATE TABLE. */
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

    /** The path as the meta-object system wants it, kept so that no row converts it again. */
    [[nodiscard]] const QByteArray& propertyPathUtf8() const { return m_propertyPathUtf8; }

private:
    QString m_columnName;
    QString m_propertyPath;
    QString m_sqlType;
    QByteArray m_propertyPathUtf8;
};

/**
 * The value that the column gets from the record: the property at the end of the path, NULL where a partner on the
 * way is missing, a date-time as "yyyy-MM-dd hh:mm:ss", and NULL for anything that converts to KorNoValue.
 */
[[nodiscard]] QVariant columnValue(const KorColumnMap& column, const QObject* record);
