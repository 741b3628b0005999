#include "pos/cash/ledger/DataMapperCashFlow.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/cash/ledger/CashFlowFilter.h"

#include <QDebug>
#include <QSqlDriver>
#include <QSqlField>

namespace
{
/** The columns in which one SELECT of the union differs from the others. */
struct Branch
{
    QString table;
    QString date;
    QString accountJoin;
    QString type;
    QString credit;
    QString debit;
    QString no = "no";
    QString note = "note";
};

QString side(const QString& name, const QString& money)
{
    if (money.isEmpty())
        return QString("0 as %1_amount, '' as %1_currency").arg(name);
    return QString("%2_amount as %1_amount, %2_currency as %1_currency").arg(name, money);
}

/** The date conditions are in each branch, so that every table is read by its date index. */
QString selectOf(const Branch& branch)
{
    return QStringList{"select",
                       branch.date,
                       "as trans_date,",
                       branch.no,
                       "as no, bank.kode as account_code,",
                       "bank.nama,",
                       side("credit", branch.credit) + ',',
                       side("debet", branch.debit) + ',',
                       branch.note,
                       "as note,",
                       branch.type,
                       "as trans_type,",
                       branch.table + ".createdby,",
                       branch.table + ".id from",
                       branch.table,
                       "inner join bank on",
                       branch.accountJoin,
                       "where",
                       branch.date,
                       ">= :fromDate and",
                       branch.date,
                       "<= :toDate"}
        .join(' ');
}

/** Quotes a text for SQL: a translation may contain an apostrophe. */
QString quoted(const QString& text)
{
    QSqlField field("text", QVariant::String);
    field.setValue(text);
    return KorDatabase::current().driver()->formatValue(field);
}
} // namespace

DataMapperCashFlow::DataMapperCashFlow(QObject* parent, DataMapperKey* keys) : NumberedEntryMapper(parent, keys)
{
    setName("cash flow");
    metaData()->setTableName("cash_flow");
    column("trans_date", "date not null", "Date");
    column("notes", "text null", "Notes");
    column("trans_no", "varchar(50) not null", "TransNo");
    column("trans_type", "varchar(50) not NULL", "TransType");
    column("account_code", "varchar(20) not null", "AccountCode");
    moneyColumns("debet", "Debet");
    moneyColumns("credit", "Credit");
}

KorEntity* DataMapperCashFlow::createEntity() { return new EntityCashFlow(entityParent()); }

QStringList DataMapperCashFlow::indexStatements() const
{
    return {index("trans_date", "(trans_date)"), index("no", "(lower(trans_no))")};
}

// --- the ledger ----------------------------------------------------------------------------------------------------

QString DataMapperCashFlow::getCashFlowQuery() const
{
    const QString total = "grandtotal";
    const QString transfer = quoted(tr("Transferring Funds"));
    const auto account = [](const QString& table) { return "bank.id = " + table + ".bank_id"; };
    const auto document = [&account](const QString& table, const QString& date, const QString& type,
                                     const QString& credit, const QString& debit) {
        return Branch{table, date, account(table), quoted(type), credit, debit};
    };
    const Branch branches[] = {
        document("purchase_order", "purchase_date", tr("Deposit Purchase Order"), total, {}),
        document("acquisition", "purchase_date", tr("Purchases"), total, {}),
        document("credit_note", "credit_note_date", tr("Credit Note"), {}, total),
        document("payment", "payment_date", tr("Payment / Pay Bill"), total, {}),
        document("piutang", "payment_date", tr("Member Payment"), {}, total),
        document("komisi_agen", "payment_date", tr("Agent Commission"), total, {}),
        {"invoice", "invoice_date", "acct_code = bank.kode", quoted(tr("Sales")), {}, total},
        {"cash_flow", "trans_date", "account_code = bank.kode", "trans_type", "credit", "debet", "trans_no", "notes"},
        {"accounting_trans", "trans_date", "bank.id = from_account_id", transfer, "amount", {}, "trans_no", "notes"},
        {"accounting_trans", "trans_date", "bank.id = to_account_id", transfer, {}, "amount", "trans_no", "notes"},
    };
    QStringList selects;
    for (const Branch& branch : branches)
        selects.append(selectOf(branch));
    return " with cash as (" + selects.join(" union ") +
           ") select cash.*,username from cash inner join users on cash.createdby = users.id ";
}

QList<EntityCashFlow*> DataMapperCashFlow::search(const CashFlowFilter& filter)
{
    KorConditions conditions;
    conditions.between("trans_date", filter.fromDate, filter.toDate);
    if (filter.type == CashFlowFilter::CreditRows)
        conditions.holds("(credit_amount >0 and credit_currency <> '')");
    else if (filter.type == CashFlowFilter::DebitRows)
        conditions.holds("(debet_amount >0 and debet_currency <> '')");
    conditions.only("lower(account_code)", filter.code.trimmed().toLower());
    // Sorted within a day as well, so that rows keep their places when the list is read again.
    conditions.descending("trans_date").descending("no").descending("id").ascending("account_code");

    KorQuery query;
    const bool done =
        execute(query, getCashFlowQuery(), conditions, {{":fromDate", filter.fromDate}, {":toDate", filter.toDate}});
    QList<EntityCashFlow*> rows;
    while (done && query.next()) {
        const KorRow found = query.row();
        const auto text = [&](const char* name) { return found.toString(query.column(name)); };
        auto* row = new EntityCashFlow(entityParent());
        row->setDate(found.toDate(query.column("trans_date")));
        row->setTransType(text("trans_type"));
        row->setAccountCode(text("account_code"));
        row->setDebet(moneyFromRow(query, "debet_currency", "debet_amount", row));
        row->setCredit(moneyFromRow(query, "credit_currency", "credit_amount", row));
        row->setAccountName(text("nama"));
        row->setNotes(text("note"));
        row->setOperator(text("username"));
        row->setTransNo(text("no"));
        rows.append(row);
    }
    return rows;
}

EntityCashFlow* DataMapperCashFlow::getByTransNo(const QString& no)
{
    return static_cast<EntityCashFlow*>(findOne(KorConditions().equals("lower(trans_no)", no.trimmed().toLower())));
}
