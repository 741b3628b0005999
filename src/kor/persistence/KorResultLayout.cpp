#include "kor/persistence/KorResultLayout.h"

#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorDataMapper.h"

#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>

int KorResultLayout::fieldIndex(const QSqlQuery& query, const QString& name)
{
    if (m_fields.isEmpty()) {
        const QSqlRecord fields = query.record();
        for (int i = 0; i < fields.count(); ++i) {
            // If two columns have the same name, a look-up by name finds the first.
            const QString field = fields.fieldName(i).toLower();
            if (!m_fields.contains(field))
                m_fields.insert(field, i);
        }
    }
    const auto known = m_fields.constFind(name);
    return known != m_fields.constEnd() ? *known : m_fields.value(name.toLower(), -1);
}

KorRowPlan& KorResultLayout::plan(const QSqlQuery& query, const KorDataMapper& mapper, const QString& alias)
{
    for (KnownPlan& known : m_plans) {
        if (known.mapper == &mapper && known.alias == alias)
            return known.plan;
    }
    const auto index = [this, &query, &alias](const QString& column) {
        return fieldIndex(query, KorDataMapper::aliasOf(alias, column));
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
    m_plans.push_back({&mapper, alias, plan});
    return m_plans.back().plan;
}

void KorResultLayout::clear()
{
    m_fields.clear();
    m_plans.clear();
}
