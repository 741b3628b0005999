#pragma once

#include <QHash>
#include <QSqlQuery>
#include <QVector>

#include <map>

class KorDataMapper;

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

/**
 * The one door through which statements reach the database: it runs on the current thread's connection, counts,
 * remembers a failed prepare, and resolves column names to positions once a result instead of once a row.
 */
class KorQuery : public QSqlQuery
{
public:
    /** The selector is the mapper that composes the SELECT: it alone reads its joins from the rows. */
    explicit KorQuery(const KorDataMapper* selector = nullptr);

    bool prepare(const QString& statement);
    bool exec();
    /** Runs the text at once; with several statements in it, all their results count. */
    bool exec(const QString& statement);

    /** What went wrong, in the database's words; a failed prepare says more than the exec behind it. */
    [[nodiscard]] QString failure() const;
    [[nodiscard]] const KorDataMapper* selector() const { return m_selector; }

    /** The value under this column name or alias, invalid when the result has no such column. */
    [[nodiscard]] QVariant field(const QString& name);
    [[nodiscard]] bool hasField(const QString& name);
    [[nodiscard]] const KorRowPlan& plan(const KorDataMapper& mapper, const QString& alias);

    /** The text of the last statement with the bound values in the places of their placeholders; for messages. */
    [[nodiscard]] static QString textWithValues(const QSqlQuery& query);
    /** How many statements the program has sent so far. */
    [[nodiscard]] static quint64 statementCount();

private:
    int fieldIndex(const QString& name);
    void forgetFields();

    const KorDataMapper* m_selector;
    QString m_prepareError;
    QHash<QString, int> m_fields;
    std::map<std::pair<const KorDataMapper*, QString>, KorRowPlan> m_plans;
};
