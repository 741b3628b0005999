#include "kor/persistence/KorQuery.h"

#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorDatabase.h"

#include <QSqlError>
#include <QSqlRecord>

#include <atomic>

namespace
{
std::atomic<quint64> sentStatements{0};
}

KorQuery::KorQuery(const KorDataMapper* selector) : QSqlQuery(KorDatabase::current()), m_selector(selector)
{
    setForwardOnly(true);
}

bool KorQuery::prepare(const QString& statement)
{
    forgetFields();
    m_prepareError.clear();
    const bool prepared = QSqlQuery::prepare(statement);
    if (!prepared)
        m_prepareError = lastError().text();
    return prepared;
}

bool KorQuery::exec()
{
    ++sentStatements;
    return m_prepareError.isEmpty() && QSqlQuery::exec();
}

bool KorQuery::exec(const QString& statement)
{
    forgetFields();
    m_prepareError.clear();
    ++sentStatements;
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

QString KorQuery::failure() const { return m_prepareError.isEmpty() ? lastError().text() : m_prepareError; }

QVariant KorQuery::field(const QString& name)
{
    const int index = fieldIndex(name);
    return index < 0 ? QVariant() : value(index);
}

bool KorQuery::hasField(const QString& name) { return fieldIndex(name) >= 0; }

const KorRowPlan& KorQuery::plan(const KorDataMapper& mapper, const QString& alias)
{
    const auto key = std::make_pair(&mapper, alias);
    const auto known = m_plans.find(key);
    if (known != m_plans.end())
        return known->second;

    const auto index = [this, &alias](const QString& column) {
        return fieldIndex(KorDataMapper::aliasOf(alias, column));
    };
    KorRowPlan plan;
    plan.id = index("id");
    plan.createdBy = index("createdBy");
    plan.createdTime = index("createdTime");
    plan.updatedBy = index("updatedBy");
    plan.updatedTime = index("updatedTime");
    plan.version = index("version");
    for (const KorColumnMap* column : mapper.metaData()->columns())
        plan.columns.append(index(column->columnName()));
    return m_plans.emplace(key, plan).first->second;
}

int KorQuery::fieldIndex(const QString& name)
{
    if (m_fields.isEmpty()) {
        const QSqlRecord fields = record();
        for (int i = 0; i < fields.count(); ++i) {
            // The first of two columns of one name is the one that a look-up by name finds.
            const QString field = fields.fieldName(i).toLower();
            if (!m_fields.contains(field))
                m_fields.insert(field, i);
        }
    }
    return m_fields.value(name.toLower(), -1);
}

void KorQuery::forgetFields()
{
    m_fields.clear();
    m_plans.clear();
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
