#include "setup/sample/SampleTrade.h"

#include "app/configuration/BusinessConfiguration.h"
#include "setup/sample/BareTables.h"
#include "setup/sample/SampleStatements.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace
{
const QStringList tradeTables{"invoice",
                              "invoice_detail",
                              "invoice_makan_ditempat",
                              "invoice_fast_food",
                              "invoice_bawa_pulang",
                              "makan_ditempat",
                              "makan_ditempat_detail",
                              "bawa_pulang",
                              "bawa_pulang_detail",
                              "purchase_order",
                              "purchase_order_detail",
                              "acquisition",
                              "acquisition_detail",
                              "credit_note",
                              "credit_note_detail",
                              "payment",
                              "payment_invoice",
                              "payment_expense",
                              "piutang",
                              "piutang_detail",
                              "komisi_agen",
                              "komisi_agen_detail",
                              "cash_flow",
                              "accounting_trans",
                              "stock_take",
                              "item_history"};

QString inSql(const QDate& day) { return day.toString(Qt::ISODate); }

QDate firstOfMonth(const QDate& day) { return QDate(day.year(), day.month(), 1); }
QDate lastOfMonth(const QDate& day) { return QDate(day.year(), day.month(), day.daysInMonth()); }
} // namespace

SampleTrade::SampleTrade(const QSqlDatabase& database, const Wishes& wishes, Progress progress)
    : m_database(database), m_wishes(wishes), m_progress(std::move(progress)), m_today(QDate::currentDate()),
      m_begin(m_today.addMonths(-wishes.months))
{}

bool SampleTrade::run()
{
    if (!mayFill())
        return false;
    fixValues();
    if (!m_database.transaction()) {
        m_failure = m_database.lastError().text();
        return false;
    }
    // A sale that came between is seen now, and none comes any more.
    if (!exec({"lock table " + tradeTables.join(", ")}) || !mayFill() || !fill()) {
        m_database.rollback();
        return false;
    }
    if (!m_database.commit()) {
        m_failure = m_database.lastError().text();
        return false;
    }
    m_progress(100, tr("The sample restaurant is open."));
    return exec({"analyze"});
}

bool SampleTrade::mayFill()
{
    for (const QString& table : tradeTables) {
        QSqlQuery query(m_database);
        if (!query.exec("select exists (select from " + table + ")") || !query.next()) {
            m_failure = query.lastError().text();
            return false;
        }
        if (query.value(0).toBool()) {
            m_failure = tr("The database holds trade already, in the table %1. Nothing was changed.").arg(table);
            return false;
        }
    }
    return true;
}

void SampleTrade::fixValues()
{
    QSqlQuery query("select appvalue from appconfig where appkey = 'localization'", m_database);
    const QByteArray json = query.next() ? query.value(0).toByteArray() : QByteArray();
    const QString locale = QJsonDocument::fromJson(json).object().value("locale").toString("en_US");
    const QString currency = QLocale(locale).currencySymbol(QLocale::CurrencySymbol);
    const bool isRupiah = currency.toLower() == "rp";
    m_values = {{"{seed}", QString::number(m_wishes.seed)},
                {"{currency}", currency},
                {"{unit}", isRupiah ? "5000" : "1"},
                {"{factor}", isRupiah ? "1" : "100"},
                {"{perday}", QString::number(m_wishes.perDay)},
                {"{samplekey}", BusinessConfiguration::sampleKey()},
                {"{begin}", inSql(m_begin)},
                {"{today}", inSql(m_today)}};
}

bool SampleTrade::fill()
{
    m_progress(0, tr("Catalogue"));
    // Compiling the statements would take longer than most of them.
    if (!exec({"set local maintenance_work_mem = '256MB'", "set local work_mem = '64MB'", "set local jit = off"}) ||
        !exec(Sample::tools() + Sample::catalogue() + Sample::choices()))
        return false;
    BareTables tables(m_database, tradeTables);
    const bool isFilled = tables.strip() && fillMonths() && exec(Sample::openOrders());
    if (isFilled) {
        m_progress(85, tr("Indexes"));
        if (tables.restore())
            return true;
    }
    if (!tables.failure().isEmpty())
        m_failure = tables.failure();
    return false;
}

bool SampleTrade::fillMonths()
{
    for (QDate month = firstOfMonth(m_begin); month < m_today; month = month.addMonths(1)) {
        const qint64 daysDone = std::max<qint64>(0, m_begin.daysTo(month));
        m_progress(int(2 + daysDone * 83 / m_begin.daysTo(m_today)), QLocale::c().toString(month, "MMMM yyyy"));
        if (!fillMonth(month))
            return false;
    }
    return true;
}

bool SampleTrade::fillMonth(const QDate& month)
{
    const QDate yesterday = m_today.addDays(-1);
    const QDate from = std::max(month, m_begin);
    const QDate to = std::min(lastOfMonth(month), yesterday);
    m_monthValues = {{"{month}", inSql(month)}, {"{from}", inSql(from)}, {"{to}", inSql(to)}};
    const bool isOver = to == lastOfMonth(month) && to < yesterday;
    return readNumbers(from, to) && exec(Sample::sales()) && exec(Sample::purchases()) && exec(Sample::returns()) &&
           exec(Sample::supplierPayments()) && exec(Sample::stock()) && (!isOver || exec(Sample::stockCount())) &&
           exec(Sample::memberPayments()) && exec(Sample::commissions()) && exec(Sample::cash());
}

bool SampleTrade::readNumbers(const QDate& from, const QDate& to)
{
    QSqlQuery query(m_database);
    if (!query.exec("select key_name, format from keytable")) {
        m_failure = query.lastError().text();
        return false;
    }
    // As a save makes it, of the clock; documents whose format asks for the hour are written after ten.
    QStringList rows;
    while (query.next()) {
        for (QDate day = from; day <= to; day = day.addDays(1)) {
            QString prefix = QDateTime(day, QTime(10, 0)).toString(query.value(1).toString());
            rows.append(
                QString("('%1', date '%2', '%3')")
                    .arg(query.value(0).toString().replace('\'', "''"), inSql(day), prefix.replace('\'', "''")));
        }
    }
    return exec({"truncate sample_number",
                 "insert into sample_number select name, day, prefix, next_id, increment_by, no_zero from (values " +
                     rows.join(',') + ") made (name, day, prefix) join keytable on key_name = name"});
}

bool SampleTrade::exec(const QStringList& statements)
{
    for (const QString& statement : statements) {
        QSqlQuery query(m_database);
        query.exec(filledIn(statement));
        // A text may hold several statements; each has its own result, and a failure ends them.
        while (!query.lastError().isValid() && query.nextResult()) {
        }
        if (query.lastError().isValid()) {
            m_failure = query.lastError().text();
            return false;
        }
    }
    return true;
}

QString SampleTrade::filledIn(QString statement) const
{
    for (const auto& value : m_values + m_monthValues)
        statement.replace(value.first, value.second);
    return statement;
}
