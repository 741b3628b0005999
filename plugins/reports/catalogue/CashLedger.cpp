#include "reports/catalogue/CashLedger.h"

namespace
{
enum Side { Debit, Credit };

/** Documents stand in the journal with their whole total, and only with an account and a user that are there. */
QString branch(const QString& table, const QString& date, const QString& account, const QString& kind,
               const QString& debit, const QString& credit, const QString& condition, const QString& no = "no",
               const QString& note = "note")
{
    return "select bank.kode as account, bank.nama as accountname, " + date + "::date as day, t." + no + " as no, '" +
           kind + "' as kind, t." + note + " as note, " + debit + " as debit, " + credit +
           " as credit, t.id, users.username "
           "from " +
           table + " t join bank on " + account + " join users on users.id = t.createdby where " + date + ' ' +
           condition + " and (:account::text is null or bank.kode = :account)";
}

QString document(const QString& table, const QString& date, const QString& kind, Side side, const QString& condition)
{
    const QString total = "t.grandtotal_amount";
    return branch(table, "t." + date, "bank.id = t.bank_id", kind, side == Debit ? total : "0",
                  side == Credit ? total : "0", condition);
}
} // namespace

QString CashLedger::movements(const QString& condition)
{
    const auto transfer = [&condition](const QString& account, const QString& debit, const QString& credit) {
        return branch("accounting_trans", "t.trans_date", "bank.id = t." + account, "transfer", debit, credit,
                      condition, "trans_no", "notes");
    };
    return QStringList{
        document("purchase_order", "purchase_date", "order", Credit, condition),
        document("acquisition", "purchase_date", "purchase", Credit, condition),
        document("credit_note", "credit_note_date", "return", Debit, condition),
        document("payment", "payment_date", "bill", Credit, condition),
        document("piutang", "payment_date", "member", Debit, condition),
        document("komisi_agen", "payment_date", "commission", Credit, condition),
        branch("invoice", "t.invoice_date", "bank.kode = t.acct_code", "sale", "t.grandtotal_amount", "0", condition),
        branch("cash_flow", "t.trans_date", "bank.kode = t.account_code", "entry", "t.debet_amount", "t.credit_amount",
               condition, "trans_no", "notes"),
        transfer("from_account_id", "0", "t.amount_amount"),
        transfer("to_account_id", "t.amount_amount", "0")}
        .join(" union all ");
}

QList<QPair<QVariant, const char*>> CashLedger::kindWords()
{
    return {{"opening", QT_TRANSLATE_NOOP("Reports", "Opening balance")},
            {"sale", QT_TRANSLATE_NOOP("Reports", "Sales")},
            {"member", QT_TRANSLATE_NOOP("Reports", "Member payment")},
            {"return", QT_TRANSLATE_NOOP("Reports", "Returned to supplier")},
            {"purchase", QT_TRANSLATE_NOOP("Reports", "Purchases")},
            {"order", QT_TRANSLATE_NOOP("Reports", "Purchase order")},
            {"bill", QT_TRANSLATE_NOOP("Reports", "Bill paid")},
            {"commission", QT_TRANSLATE_NOOP("Reports", "Agent commission")},
            {"transfer", QT_TRANSLATE_NOOP("Reports", "Transfer of funds")},
            {"entry", QT_TRANSLATE_NOOP("Reports", "Journal entry")},
            {"closing", QT_TRANSLATE_NOOP("Reports", "Closing balance")}};
}
