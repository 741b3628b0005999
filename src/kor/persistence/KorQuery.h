#pragma once

#include "kor/persistence/KorResultLayout.h"
#include "kor/system/KorFailure.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <functional>
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
    /** The same, and stands on the first result, false where that one failed; nextResult() goes on. */
    bool send(const QString& statements);

    /** Binds a value that no text may show: neither statementWithValues() nor failure() does. */
    void bindSecret(int position, const QString& value);

    /** What went wrong, in the database's words; a failed prepare says more than the exec behind it. */
    [[nodiscard]] QString failure() const;
    /** The same, with this statement on a line of its own. */
    [[nodiscard]] QString failureOf(const QString& statement) const;
    /** The same, with the statement that was run and its values. */
    [[nodiscard]] QString failureWithStatement() const { return failureOf(statementWithValues()); }
    [[nodiscard]] QString statementWithValues() const { return textWithValues(*this, m_secrets); }
    [[nodiscard]] const KorDataMapper* selector() const { return m_selector; }

    /** The value under this column name or alias, invalid when the result has no such column. */
    [[nodiscard]] QVariant field(const QString& name);
    [[nodiscard]] const KorRowPlan& plan(const KorDataMapper& mapper, const QString& alias);

    /** The text of the last statement with the bound values in the places of their placeholders; for messages. */
    [[nodiscard]] static QString textWithValues(const QSqlQuery& query, const QStringList& secrets = {});
    /** How many statements the program has sent so far. */
    [[nodiscard]] static quint64 statementCount();

private:
    [[nodiscard]] KorResultLayout& layout();
    void letGo();
    bool prepareAgain();
    /** Makes a call that waits for the server. */
    bool atServer(const std::function<bool()>& call);
    [[nodiscard]] KorFailure::Connection connection() const;

    const KorDataMapper* m_selector;
    // Says more than what was tried behind it; no error where the statement could be prepared.
    QSqlError m_prepareError;
    QStringList m_secrets;
    // The prepared statement in use; it shares its query with this one.
    std::unique_ptr<KorStatement> m_statement;
    bool m_reused = false;
    // For texts that are run at once.
    KorResultLayout m_layout;
};
