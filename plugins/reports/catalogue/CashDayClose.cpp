#include "reports/catalogue/CashDayClose.h"

#include "reports/catalogue/Questions.h"

using Column = ReportColumn;

namespace
{
/** A sum over the takings "t"; 0 instead of NULL. */
QString sumOf(const QString& field) { return "coalesce(sum(t." + field + "), 0) as " + field; }

/** Cash movements other than sales and members' payments. */
QString moved(const QString& table, const QString& date, const QString& account, const QString& in, const QString& out,
              const QString& condition = QString())
{
    return "select t.createdby, bank.kode, 0, 0, 0, 0, 0, 0, 0, 0, " + in + ", " + out + " from " + table +
           " t join bank on " + account + " where t." + date + " = :day and bank.account_type = 1" + condition;
}

QString takings()
{
    return QStringList{
        R"(select i.createdby, i.acct_code as account, count(*) as sales, sum(i.grandtotal_amount) as total,
                  sum(least(i.amount_paid_amount, i.grandtotal_amount)) as cash, sum(i.other_payment_amount) as credit,
                  sum(greatest(i.grandtotal_amount - i.amount_paid_amount - i.other_payment_amount, 0)) as due,
                  0 as membercash, 0 as membertransfer, 0 as membercheck, 0 as received, 0 as spent
           from invoice i where i.invoice_date = :day group by 1, 2)",
        R"(select pay.createdby, bank.kode, 0, 0, 0, 0, 0,
                  case pay.payment_type when 1 then pay.grandtotal_amount else 0 end,
                  case pay.payment_type when 2 then pay.grandtotal_amount else 0 end,
                  case pay.payment_type when 3 then pay.grandtotal_amount else 0 end, 0, 0
           from piutang pay left join bank on bank.id = pay.bank_id where pay.payment_date = :day)",
        moved("cash_flow", "trans_date", "bank.kode = t.account_code", "t.debet_amount", "t.credit_amount"),
        moved("accounting_trans", "trans_date", "bank.id = t.to_account_id", "t.amount_amount", "0"),
        moved("accounting_trans", "trans_date", "bank.id = t.from_account_id", "0", "t.amount_amount"),
        moved("payment", "payment_date", "bank.id = t.bank_id", "0", "t.grandtotal_amount", " and t.payment_type = 1"),
        moved("komisi_agen", "payment_date", "bank.id = t.bank_id", "0", "t.grandtotal_amount"),
        moved("acquisition", "purchase_date", "bank.id = t.bank_id", "0",
              "least(t.amount_paid_amount, t.grandtotal_amount)"),
        moved("credit_note", "credit_note_date", "bank.id = t.bank_id",
              "least(t.amount_paid_amount, t.grandtotal_amount)", "0", " and t.status <> 4"),
        moved("purchase_order", "purchase_date", "bank.id = t.bank_id", "0", "t.deposit_amount")}
        .join(" union all ");
}
} // namespace

Report dayClose()
{
    Report report;
    report.id = "cash-day-close";
    report.title = QT_TRANSLATE_NOOP("Reports", "Day's close");
    report.about = QT_TRANSLATE_NOOP(
        "Reports",
        "What each cashier took on the day. Expected cash is the cash of the sales without the change, the cash from "
        "members, and what else came into and left accounts of the type Cash; the change in the drawer at opening "
        "comes "
        "on top. Credit is what the sales of the day had settled otherwise, and later by members.");
    report.parameters = {ReportParameter::day("day", QT_TRANSLATE_NOOP("Reports", "Day:")), Questions::cashier(),
                         Questions::account()};
    QStringList sums;
    for (const char* field :
         {"total", "cash", "credit", "due", "membercash", "membertransfer", "membercheck", "received", "spent"})
        sums.append(sumOf(field));
    report.query = "select coalesce(u.username, '') as cashier, coalesce(t.account, '') as account, "
                   "sum(t.sales)::bigint as sales, " +
                   sums.join(", ") + ", sum(t.cash + t.membercash + t.received - t.spent) as expected from (" +
                   takings() +
                   ") t left join users u on u.id = t.createdby "
                   "where (:cashier::bigint is null or t.createdby = :cashier::bigint) "
                   "and (:account::text is null or t.account = :account) "
                   "group by u.id, u.username, t.account order by lower(u.username), t.account";
    const auto money = [](const QString& field, const char* title) { return Column::money(field, title).sum(); };
    report.columns = {Column::text("cashier", QT_TRANSLATE_NOOP("Reports", "Cashier"))
                          .words({{"", QT_TRANSLATE_NOOP("Reports", "Not known")}}),
                      Column::text("account", QT_TRANSLATE_NOOP("Reports", "Account")),
                      money("expected", QT_TRANSLATE_NOOP("Reports", "Expected cash")),
                      Column::count("sales", QT_TRANSLATE_NOOP("Reports", "Sales")).sum(),
                      money("total", QT_TRANSLATE_NOOP("Reports", "Total")),
                      money("cash", QT_TRANSLATE_NOOP("Reports", "Cash")),
                      money("credit", QT_TRANSLATE_NOOP("Reports", "Credit")),
                      money("due", QT_TRANSLATE_NOOP("Reports", "Still due")),
                      money("membercash", QT_TRANSLATE_NOOP("Reports", "Members: cash")),
                      money("membertransfer", QT_TRANSLATE_NOOP("Reports", "Members: transfer")),
                      money("membercheck", QT_TRANSLATE_NOOP("Reports", "Members: check")),
                      money("received", QT_TRANSLATE_NOOP("Reports", "Other in")),
                      money("spent", QT_TRANSLATE_NOOP("Reports", "Paid out"))};
    return report;
}
