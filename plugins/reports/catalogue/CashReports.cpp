#include "reports/catalogue/CashDayClose.h"
#include "reports/catalogue/CashLedger.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

using Column = ReportColumn;

namespace
{
ReportColumn debit() { return Column::money("debit", QT_TRANSLATE_NOOP("Reports", "Debit")).sum(); }
ReportColumn credit() { return Column::money("credit", QT_TRANSLATE_NOOP("Reports", "Credit")).sum(); }
ReportColumn kind()
{
    return Column::text("kind", QT_TRANSLATE_NOOP("Reports", "Kind")).words(CashLedger::kindWords());
}
ReportColumn account() { return Column::text("account", QT_TRANSLATE_NOOP("Reports", "Account")); }

Report ofMovements(const QString& id, const char* title, const char* about)
{
    Report report;
    report.id = id;
    report.title = title;
    report.about = about;
    report.parameters = {ReportParameter::period(), Questions::account()};
    return report;
}

/** The balance of each account before the period. */
QString opening()
{
    return "opening as (select account, accountname, debit - credit as balance from (" + CashLedger::sums("< :from") +
           ") before)";
}

/** The movements of the period as "moved", then opening(). */
QString periodAndBefore()
{
    return "with moved as (" + CashLedger::movements("between :from and :to") + "), " + opening();
}

Report ledger()
{
    Report report =
        ofMovements("cash-ledger", QT_TRANSLATE_NOOP("Reports", "Ledger by account"),
                    QT_TRANSLATE_NOOP("Reports", "Every movement of each account with its balance, as in the general "
                                                 "journal: documents with their whole total, whatever was paid of it, "
                                                 "and none without an account."));
    report.query = periodAndBefore() + R"(,
        accounts as (select account, accountname from moved union select account, accountname from opening),
        lines as (
            select 0 as place, accounts.account, accounts.accountname, :from::date as day, null as no, 'opening' as kind,
                   null as note, null::numeric as debit, null::numeric as credit, 0 as id, null as username,
                   coalesce(balance, 0) as change
            from accounts left join opening on opening.account = accounts.account
            union all
            select 1, account, accountname, day, no, kind, note, debit, credit, id, username, debit - credit from moved
            union all
            select 2, account, accountname, :to::date, null, 'closing', null, null, null, 0, null, 0 from accounts)
        select account || ' ' || accountname as account, day, no, kind, note, nullif(debit, 0) as debit,
               nullif(credit, 0) as credit,
               sum(change) over (partition by account order by place, day, kind, no, id) as balance, username
        from lines order by lines.account, place, day, kind, no, id)";
    report.columns = {account(),
                      Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")),
                      Column::text("no", QT_TRANSLATE_NOOP("Reports", "Number")),
                      kind(),
                      Column::text("note", QT_TRANSLATE_NOOP("Reports", "Description")),
                      debit(),
                      credit(),
                      Column::money("balance", QT_TRANSLATE_NOOP("Reports", "Balance")),
                      Column::text("username", QT_TRANSLATE_NOOP("Reports", "Entered by"))};
    report.group = "account";
    return report;
}

Report balances()
{
    Report report = ofMovements(
        "cash-balances", QT_TRANSLATE_NOOP("Reports", "Account balances"),
        QT_TRANSLATE_NOOP("Reports", "What each account had at the beginning of the period, what came and went, "
                                     "and what it had at the end, reckoned from all documents since the "
                                     "first as the general journal has them."));
    report.query = "with " + opening() + ", sums as (" + CashLedger::sums("between :from and :to") + R"()
        select account, accountname as name, coalesce(opening.balance, 0) as opening, coalesce(movements, 0) as movements,
               coalesce(debit, 0) as debit, coalesce(credit, 0) as credit,
               coalesce(opening.balance, 0) + coalesce(debit, 0) - coalesce(credit, 0) as closing
        from sums full join opening using (account, accountname)
        order by account)";
    report.columns = {account(),
                      Column::text("name", QT_TRANSLATE_NOOP("Reports", "Name")),
                      Column::money("opening", QT_TRANSLATE_NOOP("Reports", "Opening balance")).sum(),
                      Column::count("movements", QT_TRANSLATE_NOOP("Reports", "Movements")).sum(),
                      debit(),
                      credit(),
                      Column::money("closing", QT_TRANSLATE_NOOP("Reports", "Closing balance")).sum()};
    return report;
}

ReportColumn in() { return Column::money("debit", QT_TRANSLATE_NOOP("Reports", "Money in")).sum(); }
ReportColumn out() { return Column::money("credit", QT_TRANSLATE_NOOP("Reports", "Money out")).sum(); }
ReportColumn net() { return Column::money("net", QT_TRANSLATE_NOOP("Reports", "In less out")).sum(); }

Report byKind()
{
    Report report = ofMovements(
        "cash-by-kind", QT_TRANSLATE_NOOP("Reports", "Money in and out by kind"),
        QT_TRANSLATE_NOOP("Reports", "The movements of the general journal by their kind. A transfer counts "
                                     "on both of its accounts; choose an account to see one side alone."));
    report.query = "select kind, count(*) as movements, sum(debit) as debit, sum(credit) as credit, "
                   "sum(debit - credit) as net from (" +
                   CashLedger::movements("between :from and :to") +
                   ") moved group by kind order by sum(debit + credit) desc, kind";
    report.columns = {kind(), Column::count("movements", QT_TRANSLATE_NOOP("Reports", "Movements")).sum(), in(), out(),
                      net()};
    report.chart = ReportChart::bars("kind", {"debit", "credit"});
    return report;
}

Report byDay()
{
    Report report =
        ofMovements("cash-by-day", QT_TRANSLATE_NOOP("Reports", "Money in and out by day"),
                    QT_TRANSLATE_NOOP("Reports", "The movements of the general journal day by day, and the balance at "
                                                 "the end of each day since the first document."));
    report.query = periodAndBefore() + R"(,
        days as (select day, count(*) as movements, sum(debit) as debit, sum(credit) as credit from moved group by day),
        series as (select generate_series(min(day)::timestamp, max(day)::timestamp, interval '1 day')::date as day
                   from days)
        select series.day, coalesce(movements, 0) as movements, coalesce(debit, 0) as debit,
               coalesce(credit, 0) as credit, coalesce(debit, 0) - coalesce(credit, 0) as net,
               (select coalesce(sum(balance), 0) from opening) +
               sum(coalesce(debit, 0) - coalesce(credit, 0)) over (order by series.day) as balance
        from series left join days on days.day = series.day
        order by series.day)";
    report.columns = {Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")),
                      Column::count("movements", QT_TRANSLATE_NOOP("Reports", "Movements")).sum(),
                      in(),
                      out(),
                      net(),
                      Column::money("balance", QT_TRANSLATE_NOOP("Reports", "Balance"))};
    report.chart = ReportChart::lines("day", {"debit", "credit"});
    return report;
}
} // namespace

ReportSubject ReportCatalogue::cash()
{
    return {"Kas",
            QT_TRANSLATE_NOOP("Reports", "Cash Flow Reports"),
            {dayClose(), ledger(), balances(), byKind(), byDay()}};
}
