#include "hands/TillBooks.h"

#include "hands/Till.h"

#include <QDir>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace
{
/** The counter in a number of the form "TRD", month, year, counter. */
const char* const counted = "substr(no, 8)::int";
/** Per bill: total, lines and their sum, links, the order's lines, and the order's status. */
const char* const bills =
    "SELECT i.pemesan, i.no, i.grandtotal_amount::int, "
    "(SELECT count(*) FROM invoice_detail d WHERE d.invoice_id = i.id)::int, "
    "(SELECT coalesce(sum(d.total_amount), 0) FROM invoice_detail d WHERE d.invoice_id = i.id)::int, "
    "(SELECT count(*) FROM invoice_makan_ditempat l WHERE l.invoice_id = i.id)::int, "
    "(SELECT count(*) FROM makan_ditempat_detail d JOIN invoice_makan_ditempat l USING (makan_ditempat_id) "
    "WHERE l.invoice_id = i.id)::int, "
    "(SELECT min(o.status) FROM makan_ditempat o JOIN invoice_makan_ditempat l ON l.makan_ditempat_id = o.id "
    "WHERE l.invoice_id = i.id)::int FROM invoice i ORDER BY i.id";
constexpr int figuresOfABill = 6;
constexpr int paid = 4;

QStringList journals(const QString& folder)
{
    QStringList paths;
    for (const QString& name : QDir(folder).entryList({"till-*.journal"}, QDir::Files))
        paths.append(QDir(folder).filePath(name));
    return paths;
}

template <class Function>
void eachLine(const QString& folder, Function function)
{
    for (const QString& path : journals(folder)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd())
            function(QString::fromUtf8(file.readLine()).trimmed());
    }
}
} // namespace

TillBooks::TillBooks(const QString& folder)
{
    eachLine(folder, [this](const QString& line) { read(line); });
}

int TillBooks::acknowledged(const QString& folder)
{
    int number = 0;
    eachLine(folder, [&number](const QString& line) { number += line.startsWith("ack ") ? 1 : 0; });
    return number;
}

void TillBooks::read(const QString& line)
{
    const QString end = line.section(' ', 0, 0);
    const QString rest = line.section(' ', 2);
    m_attempts[line.section(' ', 1, 1)] = {end, end == "ack" ? rest : QString()};
    if (end == "refused" || end == "unsure")
        ++m_reasons[end + ": " + rest];
}

QStringList TillBooks::faults(const QSqlDatabase& database)
{
    m_faults.clear();
    m_standing.clear();
    m_lateStatuses = 0;
    QSqlQuery query(database);
    if (!query.exec(bills))
        return {"the bills can not be read: " + query.lastError().text()};
    while (query.next()) {
        QList<int> figures;
        for (int i = 0; i < figuresOfABill; ++i)
            figures.append(query.value(2 + i).toInt());
        compare(query.value(0).toString(), query.value(1).toString(), figures);
    }
    findMissing();
    checkNumbers(database);
    return m_faults;
}

void TillBooks::compare(const QString& reference, const QString& number, const QList<int>& figures)
{
    const QString name = reference + ", " + number + ": ";
    const Attempt attempt = m_attempts.value(reference);
    if (m_standing.contains(reference))
        m_faults.append(name + "stands more than once");
    m_standing.insert(reference);
    if (attempt.end.isEmpty())
        m_faults.append(name + "no till knows of it");
    else if (attempt.end == "refused")
        m_faults.append(name + "was refused, and stands");
    else if (attempt.end == "ack" && attempt.number != number)
        m_faults.append(name + "the till was told " + attempt.number);
    const TillBill bill(reference.section('-', 1).toInt());
    if (figures.mid(0, 5) != QList<int>{bill.total(), bill.lines, bill.total(), 1, bill.lines})
        m_faults.append(name + "is not whole");
    // The order's status is set after the bill's transaction, so it may be outdated after a crash.
    m_lateStatuses += figures.last() == paid ? 0 : 1;
}

void TillBooks::findMissing()
{
    for (auto attempt = m_attempts.cbegin(); attempt != m_attempts.cend(); ++attempt) {
        if (attempt->end == "ack" && !m_standing.contains(attempt.key()))
            m_faults.append(attempt.key() + ", " + attempt->number + ": was acknowledged, and is lost");
    }
}

void TillBooks::checkNumbers(const QSqlDatabase& database)
{
    QSqlQuery query(database);
    if (!query.exec(QString("SELECT count(*), count(DISTINCT %1), coalesce(max(%1), 0), (SELECT next_id FROM keytable "
                            "WHERE key_name = 'TRD') FROM invoice")
                        .arg(counted)) ||
        !query.next()) {
        m_faults.append("the numbers can not be read: " + query.lastError().text());
        return;
    }
    const int all = query.value(0).toInt();
    if (query.value(1).toInt() != all)
        m_faults.append("a number was given twice");
    if (query.value(2).toInt() != all)
        m_faults.append(QString("%1 bills, but the last number is %2").arg(all).arg(query.value(2).toInt()));
    if (query.value(3).toInt() != all + 1)
        m_faults.append(QString("%1 bills, but the next number is %2").arg(all).arg(query.value(3).toInt()));
    if (query.exec("SELECT count(*) FROM invoice_detail d WHERE NOT EXISTS (SELECT FROM invoice i WHERE i.id = "
                   "d.invoice_id)") &&
        query.next() && query.value(0).toInt() > 0)
        m_faults.append("there are lines without a bill");
}

QString TillBooks::summary() const
{
    QMap<QString, int> ends;
    int unsureAndStanding = 0;
    for (auto attempt = m_attempts.cbegin(); attempt != m_attempts.cend(); ++attempt) {
        ++ends[attempt->end];
        const bool isUncertain = attempt->end == "unsure" || attempt->end == "try";
        unsureAndStanding += isUncertain && m_standing.contains(attempt.key()) ? 1 : 0;
    }
    QStringList lines;
    const auto row = [&lines](const QString& name, int number) {
        lines.append(QString("%1 %2").arg(number, 8).arg(name));
    };
    row("attempts", m_attempts.size());
    row("acknowledged", ends.value("ack"));
    row("refused", ends.value("refused"));
    row("uncertain, as the program said", ends.value("unsure"));
    row("uncertain, as the till was killed at it", ends.value("try"));
    row("of the uncertain ones stand", unsureAndStanding);
    row("bills in the database", m_standing.size());
    row("of them with an order whose status was not set any more", m_lateStatuses);
    for (auto reason = m_reasons.cbegin(); reason != m_reasons.cend(); ++reason)
        row("  " + reason.key(), reason.value());
    return lines.join('\n');
}
