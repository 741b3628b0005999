#include "reports/catalogue/CashLedger.h"

namespace
{
/** A table with money movements: the join to its account, the amounts in and out, and columns with different names. */
struct Branch
{
    const char* kind;
    const char* table;
    const char* date;
    const char* account = "bank.id = t.bank_id";
    const char* debit = "0";
    const char* credit = "0";
    const char* no = "no";
    const char* note = "note";
};

// Documents are in the journal with their full total, however much of it was paid.
const Branch branches[] = {
    {"order", "purchase_order", "purchase_date", "bank.id = t.bank_id", "0", "t.grandtotal_amount"},
    {"purchase", "acquisition", "purchase_date", "bank.id = t.bank_id", "0", "t.grandtotal_amount"},
    {"return", "credit_note", "credit_note_date", "bank.id = t.bank_id", "t.grandtotal_amount"},
    {"bill", "payment", "payment_date", "bank.id = t.bank_id", "0", "t.grandtotal_amount"},
    {"member", "piutang", "payment_date", "bank.id = t.bank_id", "t.grandtotal_amount"},
    {"commission", "komisi_agen", "payment_date", "bank.id = t.bank_id", "0", "t.grandtotal_amount"},
    {"sale", "invoice", "invoice_date", "bank.kode = t.acct_code", "t.grandtotal_amount"},
    {"entry", "cash_flow", "trans_date", "bank.kode = t.account_code", "t.debet_amount", "t.credit_amount", "trans_no",
     "notes"},
    {"transfer", "accounting_trans", "trans_date", "bank.id = t.from_account_id", "0", "t.amount_amount", "trans_no",
     "notes"},
    {"transfer", "accounting_trans", "trans_date", "bank.id = t.to_account_id", "t.amount_amount", "0", "trans_no",
     "notes"}};

/** Inner joins: rows without an account or a user are left out. */
QString fromOf(const Branch& branch, const QString& condition)
{
    return QString(" from %1 t join bank on %2 join users on users.id = t.createdby where t.%3 ")
               .arg(branch.table, branch.account, branch.date) +
           condition + " and (:account::text is null or bank.kode = :account)";
}
} // namespace

QString CashLedger::movements(const QString& condition)
{
    QStringList selects;
    for (const Branch& branch : branches)
        selects.append(QString("select bank.kode as account, bank.nama as accountname, t.%1::date as day, t.%2 as no, "
                               "'%3' as kind, t.%4 as note, %5 as debit, %6 as credit, t.id, users.username")
                           .arg(branch.date, branch.no, branch.kind, branch.note, branch.debit, branch.credit) +
                       fromOf(branch, condition));
    return selects.join(" union all ");
}

QString CashLedger::sums(const QString& condition)
{
    QStringList selects;
    for (const Branch& branch : branches)
        selects.append(QString("select bank.kode as account, bank.nama as accountname, count(*) as movements, "
                               "sum(%1) as debit, sum(%2) as credit")
                           .arg(branch.debit, branch.credit) +
                       fromOf(branch, condition) + " group by bank.id, bank.kode, bank.nama");
    return "select account, accountname, sum(movements)::bigint as movements, sum(debit) as debit, sum(credit) as "
           "credit "
           "from (" +
           selects.join(" union all ") + ") sums group by account, accountname";
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
