#pragma once

#include "kor/persistence/KorFieldPlan.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <deque>

class KorDataMapper;
class QSqlQuery;

/** The positions of a mapper's base columns and own columns in a result row; -1 for an absent column. */
struct KorRowPlan
{
    int id = -1;
    int createdBy = -1;
    int createdTime = -1;
    int updatedBy = -1;
    int updatedTime = -1;
    int version = -1;
    QVector<int> columns;
    /** Made for the first record that is read. */
    KorFieldPlan fields;
};

/** The columns of a statement's result, looked up by name once instead of once per row. */
class KorResultLayout
{
public:
    /** The position of this column name, ignoring case; -1 if there is none. */
    [[nodiscard]] int fieldIndex(const QSqlQuery& query, const QString& name);
    [[nodiscard]] KorRowPlan& plan(const QSqlQuery& query, const KorDataMapper& mapper, const QString& alias);
    void clear();

private:
    struct KnownPlan
    {
        const KorDataMapper* mapper;
        QString alias;
        KorRowPlan plan;
    };

    QHash<QString, int> m_fields;
    // A deque, because callers keep references to plans while more are added.
    std::deque<KnownPlan> m_plans;
};
