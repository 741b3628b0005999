#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"
#include "reports/catalogue/Questions.h"

using Column = ReportColumn;

namespace
{
ReportColumn money(const QString& field, const char* title) { return Column::money(field, title).sum(); }
ReportParameter ageDay() { return ReportParameter::day("day", QT_TRANSLATE_NOOP("Reports", "Age on:")); }

Report openOrders()
{
    Report report;
    report.id = "purchase-orders-open";
    report.title = QT_TRANSLATE_NOOP("Reports", "Open orders");
    report.about = QT_TRANSLATE_NOOP("Reports", "Orders that are not received, closed or cancelled, with what has come "
                                                "of each item so far. Late is counted from the ship date.");
    report.parameters = {Questions::supplier(), ageDay()};
    report.query = QString(R"(
        select doc.no, doc.purchase_date::date as day, supplier.nama as supplier, doc.ship_date::date as ship,
               nullif(greatest(:day::date - doc.ship_date::date, 0), 0) as late, doc.status_id as status,
               item.nama as name, line.jumlah as ordered, coalesce(came.qty, 0) as received,
               greatest(line.jumlah - coalesce(came.qty, 0), 0) as missing, satuan.kode as unit,
               greatest(line.jumlah - coalesce(came.qty, 0), 0) * line.price_amount as value
        from purchase_order doc join supplier on supplier.id = doc.supplier_id
        left join purchase_order_detail line on line.purchase_order_id = doc.id
        left join item on item.id = line.item_id left join satuan on satuan.id = item.satuan
        left join (select po_detail_id, sum(qty) as qty from acquisition_detail where po_detail_id is not null
                   group by po_detail_id) came on came.po_detail_id = line.id
        where doc.status_id not in (3, 5, 6) %1
        order by doc.purchase_date, doc.id, line.id)")
                       .arg(Asked::supplier);
    report.columns = {Columns::number(),
                      Columns::day(),
                      Columns::supplier(),
                      Column::date("ship", QT_TRANSLATE_NOOP("Reports", "Ship date")),
                      Column::count("late", QT_TRANSLATE_NOOP("Reports", "Days late")),
                      Column::text("status", QT_TRANSLATE_NOOP("Reports", "Status"))
                          .words({{1, QT_TRANSLATE_NOOP("Reports", "New")},
                                  {2, QT_TRANSLATE_NOOP("Reports", "Sent to supplier")},
                                  {4, QT_TRANSLATE_NOOP("Reports", "Changed")}}),
                      Columns::item(),
                      Column::quantity("ordered", QT_TRANSLATE_NOOP("Reports", "Ordered")),
                      Column::quantity("received", QT_TRANSLATE_NOOP("Reports", "Received")),
                      Column::quantity("missing", QT_TRANSLATE_NOOP("Reports", "To come")),
                      Columns::unit(),
                      money("value", QT_TRANSLATE_NOOP("Reports", "Worth to come"))};
    report.group = "no";
    return report;
}

Report returns()
{
    Report report;
    report.id = "purchase-returns";
    report.title = QT_TRANSLATE_NOOP("Reports", "Returns to suppliers");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "What went back to suppliers, item by item. Cancelled returns are not in "
                                     "it; they moved nothing.");
    report.parameters = {ReportParameter::period(), Questions::supplier(), Questions::itemType(), Questions::item()};
    report.query = QString(R"(
        select supplier.nama as supplier, doc.credit_note_date as day, doc.no, purchase.no as purchase,
               item.nama as name, line.qty_returned as qty, satuan.kode as unit, line.price_each_amount as price,
               line.total_price_amount as total, doc.status, doc.note
        from credit_note doc join credit_note_detail line on line.credit_note_id = doc.id
        join supplier on supplier.id = doc.supplier_id join item on item.id = line.item_id
        join satuan on satuan.id = item.satuan left join acquisition purchase on purchase.id = doc.acquisition_id
        where doc.credit_note_date between :from and :to and doc.status <> 4 %1 %2
        order by supplier.nama, supplier.id, doc.credit_note_date, doc.id, line.id)")
                       .arg(Asked::supplier, Asked::item);
    report.columns = {Columns::supplier(),
                      Columns::day(),
                      Columns::number(),
                      Column::text("purchase", QT_TRANSLATE_NOOP("Reports", "Purchase No.")),
                      Columns::item(),
                      Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "Quantity")),
                      Columns::unit(),
                      Column::money("price", QT_TRANSLATE_NOOP("Reports", "Price each")),
                      money("total", QT_TRANSLATE_NOOP("Reports", "Total")),
                      Columns::paidStatus(),
                      Columns::note()};
    report.group = "supplier";
    report.chart = ReportChart::ranking("supplier", "total");
    return report;
}

// --- what the restaurant owes --------------------------------------------------------------------------------------

Report payables()
{
    Report report;
    report.id = "payables";
    report.title = QT_TRANSLATE_NOOP("Reports", "Unpaid purchases");
    report.about = QT_TRANSLATE_NOOP("Reports", "Every purchase that is not fully paid today, the first due first.");
    report.parameters = {Questions::supplier(), ageDay()};
    report.query = QString(R"(
        select supplier.nama as supplier, doc.no, doc.invoice_no as invoice, doc.purchase_date as day,
               doc.due_date as duedate, nullif(greatest(:day::date - doc.due_date, 0), 0) as late, doc.status,
               doc.grandtotal_amount as total, doc.amount_paid_amount + doc.other_payment_amount as paid,
               doc.net_due_amount as due
        from acquisition doc join supplier on supplier.id = doc.supplier_id
        where doc.status <> 1 %1 order by doc.due_date, doc.id)")
                       .arg(Asked::supplier);
    report.columns = {Columns::supplier(),
                      Columns::number(),
                      Column::text("invoice", QT_TRANSLATE_NOOP("Reports", "Invoice No.")),
                      Columns::day(),
                      Column::date("duedate", QT_TRANSLATE_NOOP("Reports", "Due date")),
                      Column::count("late", QT_TRANSLATE_NOOP("Reports", "Days late")),
                      Columns::paidStatus(),
                      money("total", QT_TRANSLATE_NOOP("Reports", "Total")),
                      money("paid", QT_TRANSLATE_NOOP("Reports", "Paid")),
                      money("due", QT_TRANSLATE_NOOP("Reports", "Net due"))};
    report.group = "supplier";
    return report;
}

Report payablesByAge()
{
    Report report;
    report.id = "payables-by-age";
    report.title = QT_TRANSLATE_NOOP("Reports", "Payables by age");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "What is still to be paid to each supplier today, by the days that have "
                                     "gone since it was due.");
    report.parameters = {Questions::supplier(), ageDay()};
    report.query = QString(R"(
        select code, supplier, sum(due) filter (where late <= 0) as notdue,
               sum(due) filter (where late between 1 and 30) as month,
               sum(due) filter (where late between 31 and 60) as second,
               sum(due) filter (where late between 61 and 90) as third,
               sum(due) filter (where late > 90) as older, sum(due) as due, count(*) as purchases
        from (select supplier.id, supplier.kode as code, supplier.nama as supplier, :day::date - doc.due_date as late,
                     doc.net_due_amount as due
              from acquisition doc join supplier on supplier.id = doc.supplier_id where doc.status <> 1 %1) open
        group by id, code, supplier order by due desc, supplier, id)")
                       .arg(Asked::supplier);
    report.columns = {Columns::code(),
                      Columns::supplier(),
                      Column::count("purchases", QT_TRANSLATE_NOOP("Reports", "Purchases")).sum(),
                      money("notdue", QT_TRANSLATE_NOOP("Reports", "Not yet due")),
                      money("month", QT_TRANSLATE_NOOP("Reports", "1-30 days")),
                      money("second", QT_TRANSLATE_NOOP("Reports", "31-60 days")),
                      money("third", QT_TRANSLATE_NOOP("Reports", "61-90 days")),
                      money("older", QT_TRANSLATE_NOOP("Reports", "Over 90 days")),
                      money("due", QT_TRANSLATE_NOOP("Reports", "Net due"))};
    report.chart = ReportChart::ranking("supplier", "due");
    return report;
}

Report payments()
{
    Report report;
    report.id = "supplier-payments";
    report.title = QT_TRANSLATE_NOOP("Reports", "Bills paid");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "What was paid to suppliers for earlier purchases and for expenses. What "
                                     "was paid with the purchase itself is not in it.");
    report.parameters = {ReportParameter::period(), Questions::supplier()};
    report.query = QString(R"(
        select doc.payment_date as day, doc.no, supplier.nama as supplier, doc.payment_type as kind,
               coalesce(bank.kode || ' ' || bank.nama, '') as account, bills.amount as bills,
               expenses.amount as expenses, doc.grandtotal_amount as total, doc.note, users.username
        from payment doc join supplier on supplier.id = doc.supplier_id
        left join (select payment_id, sum(amount_paid_amount) as amount from payment_invoice group by payment_id) bills
             on bills.payment_id = doc.id
        left join (select payment_id, sum(amount_amount) as amount from payment_expense group by payment_id) expenses
             on expenses.payment_id = doc.id
        left join bank on bank.id = doc.bank_id left join users on users.id = doc.createdby
        where doc.payment_date between :from and :to %1 order by doc.payment_date, doc.id)")
                       .arg(Asked::supplier);
    report.columns = {Columns::day(),
                      Columns::number(),
                      Columns::supplier(),
                      Column::text("kind", QT_TRANSLATE_NOOP("Reports", "Paid by"))
                          .words({{1, QT_TRANSLATE_NOOP("Reports", "Cash")},
                                  {2, QT_TRANSLATE_NOOP("Reports", "Electronic funds transfer")},
                                  {3, QT_TRANSLATE_NOOP("Reports", "Check")}}),
                      Column::text("account", QT_TRANSLATE_NOOP("Reports", "Account")),
                      money("bills", QT_TRANSLATE_NOOP("Reports", "Purchases")),
                      money("expenses", QT_TRANSLATE_NOOP("Reports", "Expenses")),
                      money("total", QT_TRANSLATE_NOOP("Reports", "Total")),
                      Columns::note(),
                      Columns::user()};
    return report;
}
} // namespace

QList<Report> GoodsLists::ordersAndReturns() { return {openOrders(), returns()}; }

QList<Report> GoodsLists::payables() { return {::payables(), payablesByAge(), payments()}; }
