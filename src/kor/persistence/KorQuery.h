#pragma once

#include "kor/persistence/KorResultLayout.h"

#include <QSqlQuery>
#include <QVariant>

#include <memory>

class KorDataMapper;
struct KorStatement;

/**
 * The one door through which statements reach the database: it runs on the current thread's connection, counts,
 * remembers a failed prepare, uses a statement that the server knows already instead of preparing it again, and
 * resolves column names to positions once a statement instead of once a row.
 */
class KorQuery : public QSqlQuery
{
public:
    /** The selector is the mapper that composes the SELECT: it alone reads its joins from the rows. */
    explicit KorQuery(const KorDataMapper* selector = nullptr);
    ~KorQuery();
    Q_DISABLE_COPY(KorQuery)

    bool prepare(const QString& statement);
    bool exec();
    /** Runs the text at once; with several statements in it, all their results count. */
    bool exec(const QString& statement);

    /** What went wrong, in the database's words; a failed prepare says more than the exec behind it. */
    [[nodiscard]] QString failure() const;
    [[nodiscard]] const KorDataMapper* selector() const { return m_selector; }

    /** The value under this column name or alias, invalid when the result has no such column. */
    [[nodiscard]] QVariant field(const QString& name);
    [[nodiscard]] const KorRowPlan& plan(const KorDataMapper& mapper, const QString& alias);

    /** The text of the last statement with the bound values in the places of their placeholders; for messages. */
    [[nodiscard]] static QString textWithValues(const QSqlQuery& query);
    /** How many statements the program has sent so far. */
    [[nodiscard]] static quint64 statementCount();

private:
    [[nodiscard]] KorResultLayout& layout();
    void letGo();
    bool prepareAgain();

    const KorDataMapper* m_selector;
    QString m_prepareError;
    // The prepared statement in use; it shares its query with this one.
    std::unique_ptr<KorStatement> m_statement;
    bool m_reused = false;
    // For texts that are run at once.
    KorResultLayout m_layout;
};
