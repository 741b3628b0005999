#include "kor/persistence/KorPaging.h"

QString KorPaging::clauses() const
{
    QString text = m_filters.isEmpty() ? "" : " where ";
    for (int i = 0; i < m_filters.size(); ++i) {
        text += m_filters[i].first;
        if (!m_filters[i].second.isEmpty())
            text += " :prm" + QString::number(i);
    }
    text += m_sorts.isEmpty() ? "" : " order by ";
    for (const auto& sort : m_sorts)
        text += sort.first + ' ' + sort.second;
    if (m_limit > 0)
        text += " limit " + QString::number(m_limit);
    return text;
}

QString KorPaging::filterValue(const QString& condition) const
{
    for (const auto& filter : m_filters) {
        if (filter.first == condition)
            return filter.second;
    }
    return {};
}
