#pragma once

#include "kor/persistence/KorResultLayout.h"
#include "kor/persistence/KorRow.h"
#include "kor/system/KorFailure.h"

#include <QHash>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

class KorDataMapper;
class KorEntity;
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
    /**
     * Runs the text with these values in place of its named placeholders. The server plans it for the values, which
     * costs less than the wrong plan where they matter, such as the length of a period.
     */
    bool exec(const QString& statement, const QVector<QPair<QString, QVariant>>& values);
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
    /** The value as the driver writes it into a statement's text, quoted where it has to be. */
    [[nodiscard]] QString literal(const QVariant& value) const;
    [[nodiscard]] const KorDataMapper* selector() const { return m_selector; }

    /** The value of this column name or alias; invalid if the result has no such column. */
    [[nodiscard]] QVariant field(const QString& name);
    /** The position of this column name or alias, for row(); -1 if the result has no such column. */
    [[nodiscard]] int column(const QString& name);
    [[nodiscard]] const KorRowPlan& plan(const KorDataMapper& mapper, const QString& alias);
    /** The current row; call it only while the query is on one. */
    [[nodiscard]] KorRow row();
    /** Writes the plain fields of the mapper's columns, found under the alias, into the record. */
    void fillFields(KorEntity* entity, const KorDataMapper& mapper, const QString& alias);
    /**
     * The record of a joined table under this alias; null on the empty side of an outer join. What several rows of one
     * read share is read once: the rows then have the same object.
     */
    [[nodiscard]] KorEntity* partner(KorDataMapper& mapper, const QString& alias);
    /** The next rows make partners of their own; for a query that outlives the records it made. */
    void forgetPartners() { m_partners.clear(); }
    bool nextResult();

    /** The last statement with values in place of placeholders; for messages. */
    [[nodiscard]] static QString textWithValues(const QSqlQuery& query, const QStringList& secrets = {});
    /** How many statements the program has sent. */
    [[nodiscard]] static quint64 statementCount();

private:
    [[nodiscard]] KorResultLayout& layout();
    [[nodiscard]] const pg_result* result();
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
    void forgetRows();

    // By the plan, which stands for mapper and alias, and the id.
    QHash<QPair<const KorRowPlan*, int>, KorEntity*> m_partners;
    // Asked for once per result, since the driver wraps it in a variant.
    const pg_result* m_result = nullptr;
    // The layout for statements that are not prepared.
    KorResultLayout m_layout;
};
