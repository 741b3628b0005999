#include "kor/persistence/KorPaging.h"

QString KorPaging::filterValue(const QString& condition) const
{
    for (const auto& filter : m_filters) {
        if (filter.first == condition)
            return filter.second;
    }
    return {};
}
