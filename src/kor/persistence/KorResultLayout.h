#pragma once

#include <QHash>
#include <QString>
#include <QVector>

#include <deque>

class KorDataMapper;
class QSqlQuery;

/** Where in a result row a mapper finds its base columns and, in their order, its own; -1 where a column is absent. */
struct KorRowPlan
{
    int id = -1;
    int createdBy = -1;
    int createdTime = -1;
    int updatedBy = -1;
    int updatedTime = -1;
    int version = -1;
    QVector<int> columns;
};

/** The columns of a statement's results: resolved by name once, not once a row. */
class KorResultLayout
{
public:
    /** The position of the column of this name, whatever its letters' case; -1 when the result has none. */
    [[nodiscard]] int fieldIndex(const QSqlQuery& query, const QString& name);
    [[nodiscard]] const KorRowPlan& plan(const QSqlQuery& query, const KorDataMapper& mapper, const QString& alias);
    void clear();

private:
    struct KnownPlan
    {
        const KorDataMapper* mapper;
        QString alias;
        KorRowPlan plan;
    };

    QHash<QString, int> m_fields;
    // A deque leaves its elements where they are: callers hold a plan while further ones are made.
    std::deque<KnownPlan> m_plans;
};
