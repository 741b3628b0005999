#include "shell/database/converter/ConversionCount.h"

#include <algorithm>

void ConversionCount::skip(const QString& key, const QString& reason)
{
    ++m_skipped;
    add(m_skips, reason, key);
}

void ConversionCount::add(Reasons& reasons, const QString& reason, const QString& key)
{
    const auto known =
        std::find_if(reasons.begin(), reasons.end(), [&](const auto& entry) { return entry.first == reason; });
    if (known == reasons.end())
        reasons.append({reason, {key}});
    else
        known->second.append(key);
}

QString ConversionCount::listed(const QStringList& keys, int keysShown)
{
    if (keysShown == 0 || keys.size() <= keysShown)
        return keys.join(", ");
    return tr("%1 and %2 more").arg(QStringList(keys.mid(0, keysShown)).join(", ")).arg(keys.size() - keysShown);
}

QStringList ConversionCount::report(int keysShown) const
{
    QStringList lines{tr("%1: %2 read, %3 written, %4 skipped").arg(m_table).arg(m_read).arg(m_written).arg(m_skipped)};
    if (!m_failure.isEmpty())
        lines.append("  " + tr("not read to the end: %1").arg(m_failure.simplified()));
    for (const auto& reason : m_skips)
        lines.append("  " + tr("skipped, %1: %2").arg(reason.first, listed(reason.second, keysShown)));
    for (const auto& reason : m_mended)
        lines.append("  " + tr("changed, %1: %2").arg(reason.first, listed(reason.second, keysShown)));
    return lines;
}
