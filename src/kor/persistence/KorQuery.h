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
 * All statements go through this class. It runs on the current thread's connection, counts statements, keeps the error
 * of a failed prepare, reuses prepared statements, and looks up column positions once per statement instead of once per
 * row.
 */
class KorQuery : public QSqlQuery
{
public:
    /** The selector is the mapper that built the SELECT: only this mapper reads its joins from the rows. */
    explicit KorQuery(const KorDataMapper* selector = nullptr);
    ~KorQuery();
    Q_DISABLE_COPY(KorQuery)

    bool prepare(const QString& statement);
    bool exec();
    /** Runs the text at once; if it has several statements, all must succeed. */
    bool exec(const QString& statement);
    /** The same, but stays on the first result; false if that one failed. Go on with nextResult(). */
    bool send(const QString& statements);

    /** Binds a value that statementWithValues() and failure() must not show. */
    void bindSecret(int position, const QString& value);

    /** The database's error message; after a failed prepare that one, since it says more than the exec error. */
    [[nodiscard]] QString failure() const;
    /** The same, followed by this statement on its own line. */
    [[nodiscard]] QString failureOf(const QString& statement) const;
    /** The same, followed by the statement with its values. */
    [[nodiscard]] QString failureWithStatement() const { return failureOf(statementWithValues()); }
    [[nodiscard]] QString statementWithValues() const { return textWithValues(*this, m_secrets); }
    [[nodiscard]] const KorDataMapper* selector() const { return m_selector; }

    /** The value of this column name or alias; invalid if the result has no such column. */
    [[nodiscard]] QVariant field(const QString& name);
    [[nodiscard]] const KorRowPlan& plan(const KorDataMapper& mapper, const QString& alias);

    /** The last statement with values in place of placeholders; for messages. */
    [[nodiscard]] static QString textWithValues(const QSqlQuery& query, const QStringList& secrets = {});
    /** How many statements the program has sent. */
    [[nodiscard]] static quint64 statementCount();

private:
    [[nodiscard]] KorResultLayout& layout();
    void letGo();
    bool prepareAgain();
    /** Runs a call that waits for the server. */
    bool atServer(const std::function<bool()>& call);
    [[nodiscard]] KorFailure::Connection connection() const;

    const KorDataMapper* m_selector;
    // Preferred over later errors, since it says more; invalid if prepare succeeded.
    QSqlError m_prepareError;
    QStringList m_secrets;
    // The prepared statement in use; it shares its QSqlQuery with this object.
    std::unique_ptr<KorStatement> m_statement;
    bool m_reused = false;
    // The layout for statements that are not prepared.
    KorResultLayout m_layout;
};
