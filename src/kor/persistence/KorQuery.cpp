#include "kor/persistence/KorQuery.h"

#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorServerCall.h"
#include "kor/persistence/KorStatementCache.h"

#include <QRegularExpression>
#include <QSqlDriver>

#include <algorithm>
#include <atomic>

namespace
{
std::atomic<quint64> sentStatements{0};

// SQLSTATEs with which the server rejects a prepared statement before running it.
constexpr char planOutdated[] = "0A000";
constexpr char statementUnknown[] = "26000";

bool beginsWith(const QString& statement, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(), [&statement](const char* word) {
        return statement.startsWith(QLatin1String(word), Qt::CaseInsensitive);
    });
}

bool changesSchema(const QString& statement) { return beginsWith(statement, {"create", "alter", "drop"}); }

bool writes(const QString& statement) { return beginsWith(statement, {"insert", "update", "delete"}); }

/** Replaces a secret in texts. */
QString hidden() { return QStringLiteral("***"); }
} // namespace

KorQuery::KorQuery(const KorDataMapper* selector) : QSqlQuery(KorDatabase::current()), m_selector(selector) {}

KorQuery::~KorQuery() { letGo(); }

void KorQuery::letGo()
{
    if (!m_statement)
        return;
    finish();
    KorStatementCache::ofThread().giveBack(std::move(m_statement));
}

bool KorQuery::prepare(const QString& statement)
{
    letGo();
    m_prepareError = QSqlError();
    m_secrets.clear();
    m_statement = KorStatementCache::ofThread().take(statement, driver());
    m_reused = m_statement != nullptr;
    if (m_reused) {
        QSqlQuery::operator=(m_statement->query);
        // Clears the values of the former run: a placeholder that is not bound must be NULL.
        const QStringList placeholders = boundValues().keys();
        for (const QString& placeholder : placeholders)
            bindValue(placeholder, QVariant());
        return true;
    }
    if (!atServer([&] { return QSqlQuery::prepare(statement); })) {
        if (!m_prepareError.isValid())
            m_prepareError = lastError();
        return false;
    }
    // Constructed with its query: a default-constructed QSqlQuery would open the default connection, on any thread.
    m_statement = std::make_unique<KorStatement>(KorStatement{statement, *this, {}, 0, 0});
    KorStatementCache::ofThread().sign(*m_statement);
    return true;
}

bool KorQuery::exec()
{
    ++sentStatements;
    if (m_prepareError.isValid())
        return false;
    return atServer([this] { return QSqlQuery::exec(); }) || (m_reused && prepareAgain());
}

bool KorQuery::atServer(const std::function<bool()>& call)
{
    bool done = false;
    if (!KorServerCall::run(driver(), [&] { done = call(); }))
        m_prepareError = QSqlError("The program is waiting for the server.", {}, QSqlError::StatementError);
    return done;
}

bool KorQuery::prepareAgain()
{
    const QSqlError first = lastError();
    const QString state = first.nativeErrorCode();
    if (state != QLatin1String(planOutdated) && state != QLatin1String(statementUnknown))
        return false;
    const QMap<QString, QVariant> values = boundValues();
    QVector<QVariant> positional;
    for (int i = 0; i < values.size(); ++i)
        positional.append(boundValue(i));
    const QString text = m_statement->text;
    const QStringList secrets = m_secrets;
    KorStatementCache::ofThread().abandon(std::move(m_statement));
    if (prepare(text)) {
        m_secrets = secrets;
        // Positional values also get names once they are bound, but the text does not contain them.
        if (!values.isEmpty() && text.contains(values.firstKey())) {
            for (auto value = values.begin(); value != values.end(); ++value)
                bindValue(value.key(), value.value());
        } else {
            for (int i = 0; i < positional.size(); ++i)
                bindValue(i, positional.at(i));
        }
        ++sentStatements;
        if (atServer([this] { return QSqlQuery::exec(); }))
            return true;
    }
    // Keeps the first error: inside a transaction the second attempt only reports that the transaction has failed.
    m_secrets = secrets;
    m_prepareError = first;
    return false;
}

bool KorQuery::send(const QString& statements)
{
    letGo();
    m_layout.clear();
    m_prepareError = QSqlError();
    m_secrets.clear();
    ++sentStatements;
    if (changesSchema(statements))
        KorStatementCache::schemaChanged();
    return atServer([&] { return QSqlQuery::exec(statements); });
}

bool KorQuery::exec(const QString& statement)
{
    if (!send(statement))
        return false;
    // The driver reports only the first result's error; check the results of the later statements.
    if (!isSelect()) {
        while (nextResult()) {
        }
        return lastError().type() == QSqlError::NoError;
    }
    return true;
}

QString KorQuery::failure() const { return failureOf({}); }

QString KorQuery::failureOf(const QString& statement) const
{
    const QSqlError error = m_prepareError.isValid() ? m_prepareError : lastError();
    QString words = error.text();
    for (const QString& secret : m_secrets)
        words.replace(secret, hidden());
    // The server's quotation of a statement may begin or end in the middle of a secret.
    if (!m_secrets.isEmpty())
        words.remove(QRegularExpression("^LINE \\d+: .*$", QRegularExpression::MultilineOption));
    return KorFailure::of(connection(), error.nativeErrorCode(), words, statement, KorServerCall::lastHolders()).told();
}

KorFailure::Connection KorQuery::connection() const
{
    if (driver() && driver()->isOpen())
        return KorFailure::Kept;
    // Outside a transaction a statement commits by itself, and only the answer may have been lost.
    const bool mayBeDone = !m_prepareError.isValid() && !KorDatabase::isInTransaction() && writes(lastQuery());
    return mayBeDone ? KorFailure::LostWhileSaving : KorFailure::Lost;
}

void KorQuery::bindSecret(int position, const QString& value)
{
    bindValue(position, value);
    if (!value.isEmpty())
        m_secrets.append(value);
}

KorResultLayout& KorQuery::layout() { return m_statement ? m_statement->layout : m_layout; }

QVariant KorQuery::field(const QString& name)
{
    const int index = layout().fieldIndex(*this, name);
    return index < 0 ? QVariant() : value(index);
}

const KorRowPlan& KorQuery::plan(const KorDataMapper& mapper, const QString& alias)
{
    return layout().plan(*this, mapper, alias);
}

QString KorQuery::textWithValues(const QSqlQuery& query, const QStringList& secrets)
{
    const auto shown = [&secrets](const QVariant& value) {
        return secrets.contains(value.toString()) ? hidden() : value.toString();
    };
    QString text = query.lastQuery();
    const QMap<QString, QVariant> values = query.boundValues();
    const bool positional = text.contains('?');
    if (positional) {
        int position = 0;
        for (int i = 0; i < values.size(); ++i) {
            position = text.indexOf('?', position);
            if (position < 0)
                break;
            const QString value = shown(query.boundValue(i));
            text.replace(position, 1, value);
            position += value.size();
        }
        return text;
    }
    // Backwards, so that ":prm10" is replaced before ":prm1".
    for (auto it = values.constEnd(); it != values.constBegin();) {
        --it;
        text.replace(it.key(), shown(it.value()));
    }
    return text;
}

quint64 KorQuery::statementCount() { return sentStatements; }
