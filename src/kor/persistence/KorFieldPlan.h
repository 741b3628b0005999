#pragma once

#include <QVector>

class KorEntity;
class KorMetaDataMap;
class KorRow;
class QSqlQuery;
struct QMetaObject;
struct pg_result;

/**
 * Writes the columns of a result into the fields of one class of record. Which column goes where, and how it is
 * converted, is looked up once per statement. A column whose property path has a dot belongs to a nested record or to
 * money and is left to the mapper.
 */
class KorFieldPlan
{
public:
    /** The positions name the result's column for each of the mapper's columns, -1 for an absent one. */
    void make(const QMetaObject& type, const KorMetaDataMap& columns, const QVector<int>& positions,
              const pg_result* result);
    [[nodiscard]] bool isFor(const QMetaObject* type) const { return m_type == type; }
    /** The query is on this row. A field whose column is absent keeps its value. */
    void fill(KorEntity* entity, const KorRow& row, const QSqlQuery& query) const;

private:
    enum Kind {
        Integer,
        Number,
        Boolean,
        Text,
        Moment,
        Date,
        /** Any other pair of types is converted by the driver and the meta-object system. */
        Converted
    };
    struct Field
    {
        Kind kind;
        int property;
        int column;
    };

    [[nodiscard]] static Kind kindOf(int propertyType, unsigned columnType);

    const QMetaObject* m_type = nullptr;
    QVector<Field> m_fields;
};
