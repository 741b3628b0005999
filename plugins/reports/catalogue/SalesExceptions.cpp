#include "reports/catalogue/Questions.h"
#include "reports/catalogue/SalesLists.h"

using Column = ReportColumn;

namespace
{
const QList<QPair<QVariant, const char*>>& kinds()
{
    static const QList<QPair<QVariant, const char*>> kinds{
        {"gap", QT_TRANSLATE_NOOP("Reports", "Invoice number missing")},
        {"gone", QT_TRANSLATE_NOOP("Reports", "Order without its invoice")},
        {"unbilled", QT_TRANSLATE_NOOP("Reports", "Ordered, not billed")},
        {"loose", QT_TRANSLATE_NOOP("Reports", "Invoice without its order")},
        {"orphan", QT_TRANSLATE_NOOP("Reports", "Payment for a deleted invoice")},
        {"again", QT_TRANSLATE_NOOP("Reports", "Invoice saved again")},
        {"credit", QT_TRANSLATE_NOOP("Reports", "Credit unlike the payments")},
        {"discount", QT_TRANSLATE_NOOP("Reports", "Large discount")},
        {"unpaid", QT_TRANSLATE_NOOP("Reports", "Ended with money due")},
        {"day", QT_TRANSLATE_NOOP("Reports", "Dated on another day")}};
    return kinds;
}

/** One kind of exception among the invoices "i" of the period; the fields are those of the report. */
QString ofInvoices(const QString& kind, const QString& figures, const QString& joins, const QString& condition)
{
    return "select '" + kind + "' as kind, i.invoice_date as day, i.no as document, i.pemesan as subject, " + figures +
           ", i.createdby, i.createdtime, i.updatedby, i.updatedtime from invoice i " + joins +
           " where i.invoice_date between :from and :to and (" + condition + ')';
}

/** Invoice numbers are consecutive, so a gap means that invoices are missing. */
const char* const missingNumbers = R"(
    select 'gap' as kind, day, before || ' ... ' || coalesce(no, '') as document, null as subject, null::numeric as amount,
           null::numeric as percent, missing as number, null::int as createdby, null::timestamp as createdtime,
           null::int as updatedby, null::timestamp as updatedtime
    from (select day, no, lag(no) over each as before,
                 (mod(number - lag(number) over each + width, width) / step - 1)::bigint as missing
          from (select i.invoice_type as type, i.id, i.no, i.invoice_date as day,
                       right(i.no, key.digits)::bigint as number, key.width, key.step
                from invoice i join key on key.name = i.invoice_type
                where i.id between (select first from span) and (select last from span)
                  and i.no ~ ('[0-9]{' || key.digits || '}$')
                union all
                select key.name, null, null, current_date, mod(key.next, key.width), key.width, key.step
                from key where current_date between :from::date and :to::date) numbers
          window each as (partition by type order by id nulls last)) steps
    where missing > 0 and day between :from and :to)";

/** Orders that are billed or finished although they have no invoice. */
QString ordersWithoutInvoice(const QString& table, const QString& subject, const QString& joins)
{
    return "select 'gone', o.tgl, null, " + subject +
           ", sum(line.total_amount), null, null, o.createdby, "
           "o.createdtime, o.updatedby, o.updatedtime from " +
           table + " o " + joins + " left join invoice_" + table + " link on link." + table + "_id = o.id left join " +
           table + "_detail line on line." + table +
           "_id = o.id where o.tgl between :from and :to and o.status in (4, 5, 6, 7) and link.id is null "
           "group by o.id, " +
           subject;
}

/** Lines that were ordered after the bill and are on no bill. */
QString orderedNotBilled(const QString& table, const QString& subject, const QString& joins)
{
    const QString orders = " from " + table + " o join invoice_" + table + " link on link." + table + "_id = o.id ";
    const QString ofPeriod = " where o.tgl between :from and :to ";
    return "select 'unbilled', o.tgl, bills.no, " + subject +
           ", sum(price * (ordered.qty - coalesce(billed.qty, 0))), null, sum(ordered.qty - coalesce(billed.qty, 0)), "
           "o.createdby, o.createdtime, o.updatedby, o.updatedtime from " +
           table + " o " + joins + " join (select o.id, string_agg(i.no, ', ' order by i.id) as no" + orders +
           "join invoice i on i.id = link.invoice_id" + ofPeriod +
           "group by 1) bills on bills.id = o.id "
           "join (select o.id, line.item_id, sum(line.qty) as qty, max(line.price_each_amount) as price from " +
           table + " o join " + table + "_detail line on line." + table + "_id = o.id" + ofPeriod +
           "group by 1, 2) ordered on ordered.id = o.id "
           "left join (select o.id, line.item_id, sum(line.qty) as qty" +
           orders + "join invoice_detail line on line.invoice_id = link.invoice_id" + ofPeriod +
           "group by 1, 2) billed on billed.id = o.id and billed.item_id = ordered.item_id "
           "where ordered.qty > coalesce(billed.qty, 0) group by o.id, bills.no, " +
           subject;
}

/** Payment lines whose invoice was deleted. */
QString paidForNothing(const QString& table, const QString& partner, const QString& amount)
{
    return "select 'orphan', pay.payment_date, pay.no, partner.nama, line." + amount +
           ", null, null, pay.createdby, pay.createdtime, pay.updatedby, pay.updatedtime from " + table + " pay join " +
           table + "_detail line on line." + table + "_id = pay.id join " + partner + " partner on partner.id = pay." +
           partner +
           "_id left join invoice on invoice.id = line.invoice_id "
           "where pay.payment_date between :from and :to and invoice.id is null";
}

QString allKinds()
{
    const QString links = "left join invoice_makan_ditempat dine on dine.invoice_id = i.id "
                          "left join invoice_bawa_pulang away on away.invoice_id = i.id ";
    const QString table = "concat_ws(' / ', meja.nama, nullif(o.pemesan, ''))";
    const QString tables = "join meja on meja.id = o.meja_id";
    const QString due = "i.grandtotal_amount - i.amount_paid_amount - i.other_payment_amount";
    return QStringList{
        missingNumbers, ordersWithoutInvoice("makan_ditempat", table, tables),
        ordersWithoutInvoice("bawa_pulang", "o.pemesan", {}), orderedNotBilled("makan_ditempat", table, tables),
        orderedNotBilled("bawa_pulang", "o.pemesan", {}),
        ofInvoices("loose", "i.grandtotal_amount, null, null", links,
                   "i.invoice_type = 'TRD' and dine.id is null or i.invoice_type = 'TRP' and away.id is null"),
        paidForNothing("piutang", "member", "amount_paid_amount"),
        paidForNothing("komisi_agen", "agent", "commision_amount"),
        // A member's later payment also updates the invoice, which is normal.
        ofInvoices("again", "i.grandtotal_amount, null, i.version - 1",
                   "left join piutang_detail line on line.invoice_id = i.id",
                   "i.updatedtime is not null and line.id is null"),
        ofInvoices("credit", "i.other_payment_amount - line.paid, null, null",
                   "join (select line.invoice_id, sum(line.amount_paid_amount) as paid from piutang_detail line "
                   "join invoice on invoice.id = line.invoice_id where invoice.invoice_date between :from and :to "
                   "group by 1) line on line.invoice_id = i.id",
                   "line.paid <> i.other_payment_amount"),
        ofInvoices("discount", "i.discount_amount, i.discount_amount * 100 / nullif(i.sub_total_amount, 0), null", {},
                   "i.discount_amount > 0 and i.discount_amount * 100 >= :least::numeric * i.sub_total_amount"),
        ofInvoices("unpaid", due + ", null, null",
                   links + "left join makan_ditempat dineorder on dineorder.id = dine.makan_ditempat_id "
                           "left join bawa_pulang awayorder on awayorder.id = away.bawa_pulang_id",
                   "i.status <> 1 and " + due + " > 0 and coalesce(dineorder.status, awayorder.status) = 6"),
        // One day of difference is a guest who paid after midnight.
        ofInvoices("day", "i.grandtotal_amount, null, i.createdtime::date - i.invoice_date", {},
                   "i.createdtime::date - i.invoice_date not between 0 and 1")}
        .join(" union all ");
}
} // namespace

Report SalesLists::exceptions()
{
    Report report;
    report.id = "sales-exceptions";
    report.title = QT_TRANSLATE_NOOP("Reports", "Exceptions");
    report.about = QT_TRANSLATE_NOOP(
        "Reports",
        "Where to look twice. The data do not tell who deleted an invoice or when, nor what stood in it: a gap in the "
        "numbers or an order without its invoice is all that remains, and a gap may also come from running numbers "
        "that "
        "were changed. Of a changed invoice they tell who changed it last, but not what. A deleted member payment is "
        "seen only while another one of the same invoice stands.");
    report.parameters = {ReportParameter::period(),
                         ReportParameter::choice("kind", QT_TRANSLATE_NOOP("Reports", "Kind:"), kinds()),
                         ReportParameter::number("least", QT_TRANSLATE_NOOP("Reports", "Discounts from percent:"), 20)};
    report.query = R"(
        with span as (select min(id) as first, max(id) as last from invoice
                      where invoice_date between :from::date - 31 and :to),
             key as (select key_name as name, next_id as next, digits, (10 ^ digits)::numeric::bigint as width,
                            greatest(increment_by, 1) as step
                     from (select *, greatest(1, least(no_zero, 9))::int as digits from keytable) keys),
             found as ()" +
                   allKinds() + R"()
        select kind, day, document, subject, amount, percent, number, made.username as madeby, found.createdtime as made,
               changed.username as changedby, found.updatedtime as changed
        from found left join users made on made.id = found.createdby left join users changed on changed.id = found.updatedby
        where :kind::text is null or kind = :kind
        order by day, document)";
    report.columns = {Column::text("kind", QT_TRANSLATE_NOOP("Reports", "Kind")).words(kinds()),
                      Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")),
                      Column::text("document", QT_TRANSLATE_NOOP("Reports", "Document")),
                      Column::text("subject", QT_TRANSLATE_NOOP("Reports", "Guest or table")),
                      Column::money("amount", QT_TRANSLATE_NOOP("Reports", "Amount")),
                      Column::percent("percent", QT_TRANSLATE_NOOP("Reports", "Percent")),
                      Column::count("number", QT_TRANSLATE_NOOP("Reports", "Number")),
                      Column::text("madeby", QT_TRANSLATE_NOOP("Reports", "Saved by")),
                      Column::time("made", QT_TRANSLATE_NOOP("Reports", "Saved")),
                      Column::text("changedby", QT_TRANSLATE_NOOP("Reports", "Changed by")),
                      Column::time("changed", QT_TRANSLATE_NOOP("Reports", "Changed"))};
    report.group = "kind";
    return report;
}
