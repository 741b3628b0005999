#include "kor/persistence/KorConditions.h"

#include "kor/persistence/KorDataMapper.h"

KorConditions& KorConditions::compare(const QStringList& expressions, const QString& comparison, const QVariant& value)
{
    const QString text = value.toString();
    // In KorPaging a pair without a value is literal SQL.
    const QString literal = !text.isEmpty() ? "" : value.isNull() ? " null" : " ''";
    KorPaging::Pairs conditions;
    for (const QString& expression : expressions)
        conditions.append({expression + ' ' + comparison + literal, text});
    return anyOf(conditions);
}

KorConditions& KorConditions::anyOf(const KorPaging::Pairs& conditions)
{
    const bool several = conditions.size() > 1;
    QString opening = QString(m_filters.isEmpty() ? "" : " and ") + (several ? "(" : "");
    for (const auto& condition : conditions) {
        m_filters.append({opening + condition.first, condition.second});
        opening = " or ";
    }
    if (several)
        m_filters.append({")", QString()});
    return *this;
}

KorConditions& KorConditions::equals(const QString& expression, const QVariant& value)
{
    return compare({expression}, "=", value);
}

KorConditions& KorConditions::equals(const QStringList& expressions, const QVariant& value)
{
    return compare(expressions, "=", value);
}

KorConditions& KorConditions::differs(const QString& expression, const QVariant& value)
{
    return compare({expression}, "<>", value);
}

KorConditions& KorConditions::oneOf(const QString& expression, const QList<int>& ids)
{
    compare({expression}, "= ANY(", KorDataMapper::idList(ids));
    m_filters.append({")", QString()});
    return *this;
}

KorConditions& KorConditions::among(const QString& column, const QString& query)
{
    // As a join of many it would be the last one: the server reorders eight tables and no more.
    m_isSearch = true;
    return holds(column + " = any(array(" + query + "))");
}

KorConditions& KorConditions::between(const QString& expression, const QDate& from, const QDate& to)
{
    m_isSearch = true;
    if (from.isValid())
        compare({expression}, ">=", from.toString(Qt::ISODate));
    if (to.isValid())
        compare({expression}, "<=", to.toString(Qt::ISODate));
    return *this;
}

KorConditions& KorConditions::contains(const QString& expression, const QString& text)
{
    return contains(QStringList{expression}, text);
}

KorConditions& KorConditions::contains(const QStringList& expressions, const QString& text)
{
    return text.isEmpty() ? *this : matches(expressions, '%' + text.toLower() + '%');
}

KorConditions& KorConditions::matches(const QStringList& expressions, const QString& pattern)
{
    m_isSearch = true;
    return compare(expressions, "like", pattern);
}

KorConditions& KorConditions::holds(const QString& condition)
{
    m_filters.append({(m_filters.isEmpty() ? "" : " and ") + condition, QString()});
    return *this;
}

KorConditions& KorConditions::only(const QString& expression, int value, int all)
{
    return only(QStringList{expression}, value, all);
}

KorConditions& KorConditions::only(const QStringList& expressions, int value, int all)
{
    m_isSearch = true;
    return value == all ? *this : compare(expressions, "=", value);
}

KorConditions& KorConditions::only(const QString& expression, const QString& text)
{
    m_isSearch = true;
    return text.isEmpty() ? *this : compare({expression}, "=", text);
}

KorConditions& KorConditions::ascending(const QString& expression) { return sort(expression, "asc"); }

KorConditions& KorConditions::descending(const QString& expression) { return sort(expression, "desc"); }

KorConditions& KorConditions::sort(const QString& expression, const QString& direction)
{
    m_sorts.append({m_sorts.isEmpty() ? expression : ", " + expression, direction});
    return *this;
}

KorConditions& KorConditions::atMost(int rows)
{
    m_limit = rows;
    return *this;
}

void KorConditions::fill(KorPaging& paging) const
{
    paging.setFilters(m_filters);
    paging.setSorts(m_sorts);
    paging.setPlannedForValues(m_isSearch);
    paging.setLimit(m_limit);
}
