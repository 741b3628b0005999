#include "reports/catalogue/Questions.h"
#include "reports/catalogue/SalesLists.h"
#include "reports/catalogue/SalesSums.h"

using Column = ReportColumn;

namespace
{
ReportColumn date() { return Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")); }
ReportColumn number() { return Column::text("no", QT_TRANSLATE_NOOP("Reports", "Invoice No.")); }
ReportColumn cashier() { return Column::text("cashier", QT_TRANSLATE_NOOP("Reports", "Cashier")); }
ReportColumn guest() { return Column::text("guest", QT_TRANSLATE_NOOP("Reports", "Guest")); }
ReportColumn total() { return Column::money("total", QT_TRANSLATE_NOOP("Reports", "Total")).sum(); }
ReportColumn due() { return Column::money("due", QT_TRANSLATE_NOOP("Reports", "Still due")).sum(); }
ReportColumn member()
{
    return Column::text("member", QT_TRANSLATE_NOOP("Reports", "Member"))
        .words({{"", QT_TRANSLATE_NOOP("Reports", "No member")}});
}

/** Joins the member of the invoice "i", if any. */
const char* const memberJoin = "left join member m on m.id = i.member_id";

Report invoices()
{
    Report report;
    report.id = "sales-invoices";
    report.title = QT_TRANSLATE_NOOP("Reports", "Invoices");
    report.about = QT_TRANSLATE_NOOP("Reports", "Each invoice of the period, as in the list of all sales. For years of "
                                                "sales the reports by month are the better choice.");
    report.parameters = SalesSums::questions();
    report.query = QString(R"(
        select i.invoice_date as day, i.no, i.invoice_type as type, u.username as cashier, i.pemesan as guest,
               e.nama as waitress, i.grandtotal_amount as total,
               least(i.amount_paid_amount, i.grandtotal_amount) as cash, i.other_payment_amount as credit,
               greatest(i.grandtotal_amount - i.amount_paid_amount - i.other_payment_amount, 0) as due, i.status
        from invoice i left join users u on u.id = i.createdby
             left join invoice_makan_ditempat dine on dine.invoice_id = i.id
             left join invoice_fast_food fast on fast.invoice_id = i.id
             left join employee e on e.id = coalesce(dine.employee_id, fast.employee_id)
        where )") + SalesSums::scope +
                   " order by i.invoice_date, i.id";
    report.columns = {date(),
                      number(),
                      SalesSums::typeColumn(),
                      cashier(),
                      guest(),
                      Column::text("waitress", QT_TRANSLATE_NOOP("Reports", "Waitress")),
                      total(),
                      Column::money("cash", QT_TRANSLATE_NOOP("Reports", "Cash")).sum(),
                      Column::money("credit", QT_TRANSLATE_NOOP("Reports", "Credit")).sum(),
                      due(),
                      SalesSums::statusColumn()};
    return report;
}

Report discounts()
{
    Report report;
    report.id = "sales-discounts";
    report.title = QT_TRANSLATE_NOOP("Reports", "Discounts given");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "The invoices with a discount, by the cashier who saved them first. The "
                                     "percentage is of the subtotal, before tax and service.");
    report.parameters = SalesSums::questions();
    report.parameters.append(ReportParameter::number("least", QT_TRANSLATE_NOOP("Reports", "From percent:"), 0));
    report.query = QString(R"(
        select u.username as cashier, i.invoice_date as day, i.no, i.invoice_type as type, i.pemesan as guest,
               m.nama as member, i.sub_total_amount as subtotal, i.discount_amount as discount,
               i.grandtotal_amount as total
        from invoice i left join users u on u.id = i.createdby )") +
                   memberJoin + " where " + SalesSums::scope + R"(
          and i.discount_amount <> 0 and i.discount_amount * 100 >= :least::numeric * i.sub_total_amount
        order by i.invoice_date, i.id)";
    report.columns = {cashier(),
                      date(),
                      number(),
                      SalesSums::typeColumn(),
                      guest(),
                      Column::text("member", QT_TRANSLATE_NOOP("Reports", "Member")),
                      Column::money("subtotal", QT_TRANSLATE_NOOP("Reports", "Subtotal")).sum(),
                      Column::money("discount", QT_TRANSLATE_NOOP("Reports", "Discount")).sum(),
                      Column::share("percent", QT_TRANSLATE_NOOP("Reports", "Percent"), "discount", "subtotal"),
                      total()};
    report.group = "cashier";
    report.chart = ReportChart::ranking("cashier", "discount");
    return report;
}

/**
 * All unpaid amounts with their due date. The debtor is the member in whose payment form the invoice appears: the
 * order's member if there is one.
 */
const char* const openInvoices = R"(
    select i.id, i.no, i.invoice_date as day, coalesce(dine.due_date, i.invoice_date) as until,
           coalesce(m.nama, '') as member, m.kode as code, m.telp as phone, i.pemesan as guest, i.status,
           i.grandtotal_amount as total, i.amount_paid_amount + i.other_payment_amount as paid,
           i.grandtotal_amount - i.amount_paid_amount - i.other_payment_amount as due,
           greatest(:day::date - coalesce(dine.due_date, i.invoice_date), 0) as late
    from invoice i left join invoice_makan_ditempat dine on dine.invoice_id = i.id
         left join makan_ditempat ordered on ordered.id = dine.makan_ditempat_id
         left join invoice_bawa_pulang away on away.invoice_id = i.id
         left join invoice_fast_food fast on fast.invoice_id = i.id
         left join member m on m.id = coalesce(ordered.member_id, away.member_id, fast.member_id)
    where i.status <> 1 and i.invoice_date <= :day and (:member::bigint is null or m.id = :member::bigint))";

QList<ReportParameter> openQuestions()
{
    return {ReportParameter::day("day", QT_TRANSLATE_NOOP("Reports", "Until:")), Questions::member()};
}

Report open()
{
    Report report;
    report.id = "sales-open";
    report.title = QT_TRANSLATE_NOOP("Reports", "Open invoices");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "The invoices up to the day that are not fully paid today. Days late are "
                                     "counted from the due date, or from the sale where there is none.");
    report.parameters = openQuestions();
    report.query = QString(openInvoices) + " order by late desc, i.invoice_date, i.id";
    report.columns = {member(),
                      number(),
                      date(),
                      Column::date("until", QT_TRANSLATE_NOOP("Reports", "Due date")),
                      Column::count("late", QT_TRANSLATE_NOOP("Reports", "Days late")),
                      guest(),
                      total(),
                      Column::money("paid", QT_TRANSLATE_NOOP("Reports", "Paid")).sum(),
                      due(),
                      SalesSums::statusColumn()};
    report.group = "member";
    return report;
}

Report receivables()
{
    Report report;
    report.id = "sales-receivables";
    report.title = QT_TRANSLATE_NOOP("Reports", "Receivables by age");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "What members and guests owe on the invoices up to the day, as it stands "
                                     "today, by the days since it was due.");
    report.parameters = openQuestions();
    report.query = "with open as (" + QString(openInvoices) + R"()
        select member, code, max(phone) as phone, count(*) as invoices,
               coalesce(sum(due) filter (where late = 0), 0) as current,
               coalesce(sum(due) filter (where late between 1 and 30), 0) as month1,
               coalesce(sum(due) filter (where late between 31 and 60), 0) as month2,
               coalesce(sum(due) filter (where late between 61 and 90), 0) as month3,
               coalesce(sum(due) filter (where late > 90), 0) as older, sum(due) as due
        from open group by member, code order by due desc, member)";
    report.columns = {member(),
                      Column::text("code", QT_TRANSLATE_NOOP("Reports", "Code")),
                      Column::text("phone", QT_TRANSLATE_NOOP("Reports", "Phone")),
                      Column::count("invoices", QT_TRANSLATE_NOOP("Reports", "Invoices")).sum(),
                      Column::money("current", QT_TRANSLATE_NOOP("Reports", "Not yet due")).sum(),
                      Column::money("month1", QT_TRANSLATE_NOOP("Reports", "1 to 30 days")).sum(),
                      Column::money("month2", QT_TRANSLATE_NOOP("Reports", "31 to 60 days")).sum(),
                      Column::money("month3", QT_TRANSLATE_NOOP("Reports", "61 to 90 days")).sum(),
                      Column::money("older", QT_TRANSLATE_NOOP("Reports", "Over 90 days")).sum(),
                      due()};
    report.chart = ReportChart::ranking("member", "due");
    return report;
}
} // namespace

QList<Report> SalesLists::ofInvoices() { return {invoices(), discounts(), open(), receivables()}; }
