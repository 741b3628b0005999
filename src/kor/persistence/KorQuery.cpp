#include "kor/persistence/KorQuery.h"

#include "kor/entity/KorEntity.h"
#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorServerCall.h"
#include "kor/persistence/KorStatementCache.h"

#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlField>
#include <QSqlResult>

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

void KorQuery::forgetRows()
{
    m_result = nullptr;
    m_partners.clear();
}

void KorQuery::letGo()
{
    forgetRows();
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
    forgetRows();
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

bool KorQuery::exec(const QString& statement, const QVector<QPair<QString, QVariant>>& values)
{
    // One pass over texts and placeholders, so that a colon in a text or in a value is not taken for a placeholder.
    static const QRegularExpression placeholder("'[^']*'|(?<!:):[A-Za-z_]\\w*");
    QString text;
    int copied = 0;
    for (auto found = placeholder.globalMatch(statement); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const auto value = std::find_if(values.begin(), values.end(),
                                        [&match](const auto& pair) { return pair.first == match.captured(); });
        if (value == values.end())
            continue;
        text += statement.mid(copied, match.capturedStart() - copied) + literal(value->second);
        copied = match.capturedEnd();
    }
    return exec(text + statement.mid(copied));
}

QString KorQuery::literal(const QVariant& value) const
{
    QSqlField field(QString(), value.type());
    if (!value.isNull())
        field.setValue(value);
    return driver()->formatValue(field);
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
    const int index = column(name);
    return index < 0 ? QVariant() : value(index);
}

int KorQuery::column(const QString& name) { return layout().fieldIndex(*this, name); }

const KorRowPlan& KorQuery::plan(const KorDataMapper& mapper, const QString& alias)
{
    return layout().plan(*this, mapper, alias);
}

const pg_result* KorQuery::result()
{
    if (!m_result) {
        const QVariant handle = QSqlQuery::result()->handle();
        if (qstrcmp(handle.typeName(), "PGresult*") == 0)
            m_result = *static_cast<const pg_result* const*>(handle.constData());
    }
    return m_result;
}

KorRow KorQuery::row() { return {result(), at()}; }

void KorQuery::fillFields(KorEntity* entity, const KorDataMapper& mapper, const QString& alias)
{
    KorRowPlan& found = layout().plan(*this, mapper, alias);
    const QMetaObject* type = entity->metaObject();
    if (!found.fields.isFor(type))
        found.fields.make(*type, *mapper.metaData(), found.columns, result());
    found.fields.fill(entity, row(), *this);
}

KorEntity* KorQuery::partner(KorDataMapper& mapper, const QString& alias)
{
    const KorRowPlan& found = plan(mapper, alias);
    const int id = row().toInt(found.id);
    if (id == 0 || id == KorNoValue)
        return nullptr;
    const QPair<const KorRowPlan*, int> key(&found, id);
    KorEntity* known = m_partners.value(key);
    if (!known) {
        known = mapper.fromRow(*this, alias);
        m_partners.insert(key, known);
    }
    return known;
}

bool KorQuery::nextResult()
{
    forgetRows();
    return QSqlQuery::nextResult();
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
