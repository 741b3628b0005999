#include "reports/catalogue/Questions.h"
#include "reports/catalogue/SalesLists.h"

using Column = ReportColumn;

namespace
{
Report earned()
{
    Report report;
    report.id = "commissions-earned";
    report.title = QT_TRANSLATE_NOOP("Reports", "Commissions earned");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "The invoices that agents brought, with the commission at the percentage "
                                     "that the agent has today, and what was paid for it. Percentages of "
                                     "former times are known only where the commission was paid.");
    report.parameters = {ReportParameter::period(), Questions::agent(),
                         ReportParameter::choice("paid", QT_TRANSLATE_NOOP("Reports", "Status:"),
                                                 {{"1", QT_TRANSLATE_NOOP("Reports", "Paid")},
                                                  {"2", QT_TRANSLATE_NOOP("Reports", "Not yet paid")}})};
    // The agent is in the record that links a dine-in or fast-food sale to its invoice. Commissions are rounded as in
    // the program: Rupiah to whole units; other currencies to cents, which are then cut off.
    report.query = R"(
        with paid as (select line.invoice_id, sum(line.commision_amount) as amount, max(pay.payment_date) as day
                      from komisi_agen_detail line join komisi_agen pay on pay.id = line.komisi_agen_id
                           join invoice i on i.id = line.invoice_id
                      where i.invoice_date between :from and :to group by 1)
        select a.nama as agent, i.invoice_date as day, i.no, i.grandtotal_amount as total, a.commision_perc as percent,
               case when lower(i.grandtotal_currency) = 'rp' then floor(i.grandtotal_amount * a.commision_perc / 100 + 0.5)
                    else trunc(floor(i.grandtotal_amount * a.commision_perc + 0.5) / 100) end as commission,
               case when paid.invoice_id is null then 2 else 1 end as status, paid.day as paidday,
               coalesce(paid.amount, 0) as paid
        from invoice i left join invoice_makan_ditempat dine on dine.invoice_id = i.id
             left join invoice_fast_food fast on fast.invoice_id = i.id
             join agent a on a.id = coalesce(dine.agent_id, fast.agent_id)
             left join paid on paid.invoice_id = i.id
        where i.invoice_date between :from and :to and (:agent::bigint is null or a.id = :agent::bigint)
          and (:paid::text is null or (paid.invoice_id is null) = (:paid = '2'))
        order by i.invoice_date, i.id)";
    report.columns = {
        Column::text("agent", QT_TRANSLATE_NOOP("Reports", "Agent")),
        Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")),
        Column::text("no", QT_TRANSLATE_NOOP("Reports", "Invoice No.")),
        Column::money("total", QT_TRANSLATE_NOOP("Reports", "Total")).sum(),
        Column::percent("percent", QT_TRANSLATE_NOOP("Reports", "Percent")),
        Column::money("commission", QT_TRANSLATE_NOOP("Reports", "Commission")).sum(),
        Column::text("status", QT_TRANSLATE_NOOP("Reports", "Status"))
            .words({{1, QT_TRANSLATE_NOOP("Reports", "Paid")}, {2, QT_TRANSLATE_NOOP("Reports", "Not yet paid")}}),
        Column::date("paidday", QT_TRANSLATE_NOOP("Reports", "Paid on")),
        Column::money("paid", QT_TRANSLATE_NOOP("Reports", "Amount paid")).sum()};
    report.group = "agent";
    report.chart = ReportChart::ranking("agent", "commission");
    return report;
}

Report paid()
{
    Report report;
    report.id = "commissions-paid";
    report.title = QT_TRANSLATE_NOOP("Reports", "Commissions paid");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "The payments to agents, by the day of the payment. Amount paid is what "
                                     "was handed over: more than the commission means change came back.");
    report.parameters = {ReportParameter::period(), Questions::agent()};
    report.query = R"(
        with lines as (select line.komisi_agen_id, count(*) as invoices
                       from komisi_agen_detail line join komisi_agen pay on pay.id = line.komisi_agen_id
                       where pay.payment_date between :from and :to group by 1)
        select a.nama as agent, pay.payment_date as day, pay.no, coalesce(invoices, 0) as invoices,
               pay.grandtotal_amount as commission, pay.amount_paid_amount as paid,
               bank.kode || ' ' || bank.nama as account, pay.noref as reference
        from komisi_agen pay join agent a on a.id = pay.agent_id left join bank on bank.id = pay.bank_id
             left join lines on lines.komisi_agen_id = pay.id
        where pay.payment_date between :from and :to and (:agent::bigint is null or a.id = :agent::bigint)
        order by pay.payment_date, pay.id)";
    report.columns = {Column::text("agent", QT_TRANSLATE_NOOP("Reports", "Agent")),
                      Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")),
                      Column::text("no", QT_TRANSLATE_NOOP("Reports", "Payment No.")),
                      Column::count("invoices", QT_TRANSLATE_NOOP("Reports", "Invoices")).sum(),
                      Column::money("commission", QT_TRANSLATE_NOOP("Reports", "Commission")).sum(),
                      Column::money("paid", QT_TRANSLATE_NOOP("Reports", "Amount paid")).sum(),
                      Column::text("account", QT_TRANSLATE_NOOP("Reports", "Account")),
                      Column::text("reference", QT_TRANSLATE_NOOP("Reports", "Reference"))};
    report.group = "agent";
    return report;
}
} // namespace

QList<Report> SalesLists::ofAgents() { return {earned(), paid()}; }
