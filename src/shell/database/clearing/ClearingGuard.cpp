#include "shell/database/clearing/ClearingGuard.h"

#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorQuery.h"

#include <QRandomGenerator>
#include <QVariant>

// An advisory lock belongs to one database of one server. If a second connection cannot get it, both use the same
// database, even under different host names.

ClearingGuard::~ClearingGuard()
{
    if (m_mark == 0)
        return;
    KorQuery query;
    query.exec(QString("SELECT pg_advisory_unlock(%1)").arg(m_mark));
}

bool ClearingGuard::begin()
{
    const auto mark = static_cast<qint64>(QRandomGenerator::global()->generate64() >> 1);
    KorQuery query;
    if (!query.exec(QString("SELECT txid_current_snapshot()::text FROM pg_advisory_lock(%1)").arg(mark)) ||
        !query.next())
        return false;
    m_mark = mark;
    m_snapshot = query.value(0).toString();
    return true;
}

QString ClearingGuard::question() const { return QString("SELECT pg_try_advisory_lock(%1)").arg(m_mark); }

bool ClearingGuard::findChanges(QStringList* tables) const
{
    // age(xmin) counts from the transaction's own id; txid_current() assigns one, so that all queries count from the
    // same id.
    KorTransaction reading;
    KorQuery query;
    if (!query.exec("SELECT txid_current()") || !query.next())
        return false;
    const QString now = query.value(0).toString();
    QStringList all;
    if (!query.exec("SELECT format('%I.%I', schemaname, tablename) FROM pg_tables "
                    "WHERE schemaname = ANY (current_schemas(false)) ORDER BY 1"))
        return false;
    while (query.next())
        all.append(query.value(0).toString());
    for (const QString& table : qAsConst(all)) {
        if (!query.exec(QString("SELECT EXISTS (SELECT FROM %1 WHERE NOT txid_visible_in_snapshot(%2 - age(xmin), "
                                "'%3'::txid_snapshot))")
                            .arg(table, now, m_snapshot)) ||
            !query.next())
            return false;
        if (query.value(0).toBool())
            tables->append(table.section('.', 1));
    }
    return true;
}
