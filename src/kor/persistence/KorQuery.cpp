#include "kor/persistence/KorQuery.h"

#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorStatementCache.h"

#include <QSqlError>

#include <atomic>

namespace
{
std::atomic<quint64> sentStatements{0};

// SQLSTATEs with which the server turns away a prepared statement before it has done anything.
constexpr char planOutdated[] = "0A000";
constexpr char statementUnknown[] = "26000";

bool changesSchema(const QString& statement)
{
    for (const char* word : {"create", "alter", "drop"}) {
        if (statement.startsWith(QLatin1String(word), Qt::CaseInsensitive))
            return true;
    }
    return false;
}
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
    m_prepareError.clear();
    m_statement = KorStatementCache::ofThread().take(statement, driver());
    m_reused = m_statement != nullptr;
    if (m_reused) {
        QSqlQuery::operator=(m_statement->query);
        // A placeholder that nobody binds is NULL, not what it was the last time.
        const QStringList placeholders = boundValues().keys();
        for (const QString& placeholder : placeholders)
            bindValue(placeholder, QVariant());
        return true;
    }
    if (!QSqlQuery::prepare(statement)) {
        m_prepareError = lastError().text();
        return false;
    }
    // Made with its query: one that stands alone for a moment would ask for the default connection, on any thread.
    m_statement = std::make_unique<KorStatement>(KorStatement{statement, *this, {}, 0, 0});
    KorStatementCache::ofThread().sign(*m_statement);
    return true;
}

bool KorQuery::exec()
{
    ++sentStatements;
    if (!m_prepareError.isEmpty())
        return false;
    return QSqlQuery::exec() || (m_reused && prepareAgain());
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
    KorStatementCache::ofThread().abandon(std::move(m_statement));
    if (prepare(text)) {
        // Question marks have names as well once they are bound, but the text does not hold them.
        if (!values.isEmpty() && text.contains(values.firstKey())) {
            for (auto value = values.begin(); value != values.end(); ++value)
                bindValue(value.key(), value.value());
        } else {
            for (int i = 0; i < positional.size(); ++i)
                bindValue(i, positional.at(i));
        }
        ++sentStatements;
        if (QSqlQuery::exec())
            return true;
    }
    // Inside a transaction the second try only says that the transaction has failed.
    m_prepareError = first.text();
    return false;
}

bool KorQuery::exec(const QString& statement)
{
    letGo();
    m_layout.clear();
    m_prepareError.clear();
    ++sentStatements;
    if (changesSchema(statement))
        KorStatementCache::schemaChanged();
    if (!QSqlQuery::exec(statement))
        return false;
    // The driver reports the first result only; a later statement of the text may have failed all the same.
    if (!isSelect()) {
        while (nextResult()) {
        }
        return lastError().type() == QSqlError::NoError;
    }
    return true;
}

QString KorQuery::failure() const
{
    return KorDatabase::failure(driver(), m_prepareError.isEmpty() ? lastError().text() : m_prepareError);
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

QString KorQuery::textWithValues(const QSqlQuery& query)
{
    QString text = query.lastQuery();
    const QMap<QString, QVariant> values = query.boundValues();
    const bool positional = text.contains('?');
    if (positional) {
        int position = 0;
        for (int i = 0; i < values.size(); ++i) {
            position = text.indexOf('?', position);
            if (position < 0)
                break;
            const QString value = query.boundValue(i).toString();
            text.replace(position, 1, value);
            position += value.size();
        }
        return text;
    }
    // From the last name to the first, so that ":prm10" is filled before ":prm1".
    for (auto it = values.constEnd(); it != values.constBegin();) {
        --it;
        text.replace(it.key(), it.value().toString());
    }
    return text;
}

quint64 KorQuery::statementCount() { return sentStatements; }
