#include "support/LedgerRows.h"

#include "support/TestDatabase.h"

#include <QHash>

namespace
{
/** "column=value" for every column that must be given one. */
const QStringList& requiredColumns(TestDatabase& database, const QString& table)
{
    // Every test database has the same tables.
    static QHash<QString, QStringList> known;
    if (!known.contains(table))
        known[table] =
            database
                .value(QString("SELECT string_agg(column_name || '=' || CASE WHEN data_type = 'boolean' THEN 'false' "
                               "WHEN data_type = 'integer' THEN '1' WHEN data_type = 'numeric' THEN '0' "
                               "WHEN column_name LIKE '%currency' THEN '''Rp''' "
                               "WHEN data_type LIKE 'character%' THEN '''''' ELSE 'current_date' END, '|') "
                               "FROM information_schema.columns WHERE table_name = '%1' AND is_nullable = 'NO' "
                               "AND column_default IS NULL")
                           .arg(table))
                .toString()
                .split('|', Qt::SkipEmptyParts);
    return known[table];
}

QString quoted(QString text) { return '\'' + text.replace('\'', "''") + '\''; }
} // namespace

void insertRows(TestDatabase& database, const QString& table, const RowValues& values, int count)
{
    RowValues all{{"version", "1"}};
    for (const QString& column : requiredColumns(database, table))
        all.insert(column.section('=', 0, 0), column.section('=', 1));
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        all.insert(value.key(), value.value());
    database.run(QString("INSERT INTO %1 (%2) SELECT %3 FROM generate_series(1, %4) i")
                     .arg(table, all.keys().join(", "), all.values().join(", "))
                     .arg(count));
}

void insertRows(TestDatabase& database, const QString& table, const QString& values, int count)
{
    RowValues byColumn;
    for (const QString& value : values.split(", ", Qt::SkipEmptyParts))
        byColumn.insert(value.section('=', 0, 0), value.section('=', 1));
    insertRows(database, table, byColumn, count);
}

void insertLedgerRow(TestDatabase& database, const LedgerRow& row)
{
    const auto idOrNull = [](int id) { return id == 0 ? QString("NULL") : QString::number(id); };
    const QString amount = QString::number(row.amount);

    RowValues values{{ledgerTables()[row.kind].date, quoted(row.date.toString(Qt::ISODate))},
                     {"createdby", idOrNull(row.user)}};
    switch (row.kind) {
    case LedgerRow::DebitEntry:
    case LedgerRow::CreditEntry:
        values["account_code"] = quoted(row.code);
        values["trans_type"] = row.kind == LedgerRow::DebitEntry ? "'DEBET'" : "'CREDIT'";
        values[row.kind == LedgerRow::DebitEntry ? "debet_amount" : "credit_amount"] = amount;
        break;
    case LedgerRow::Transfer:
        values["from_account_id"] = idOrNull(row.account);
        values["to_account_id"] = idOrNull(row.toAccount);
        values["amount_amount"] = amount;
        break;
    default:
        values["grandtotal_amount"] = amount;
        if (row.kind == LedgerRow::Purchase || row.kind == LedgerRow::Sale)
            values["amount_paid_amount"] = QString::number(row.paid);
        if (row.kind == LedgerRow::Sale)
            values["acct_code"] = quoted(row.code);
        else
            values["bank_id"] = idOrNull(row.account);
    }
    const bool isDocument = row.kind < LedgerRow::DebitEntry;
    values[isDocument ? "no" : "trans_no"] = quoted(row.no);
    values[isDocument ? "note" : "notes"] = row.note.isNull() ? QString("NULL") : quoted(row.note);
    insertRows(database, ledgerTables()[row.kind].name, values);
}

const QList<LedgerTable>& ledgerTables()
{
    static const QList<LedgerTable> tables{{"purchase_order", "purchase_date"}, {"acquisition", "purchase_date"},
                                           {"credit_note", "credit_note_date"}, {"payment", "payment_date"},
                                           {"piutang", "payment_date"},         {"komisi_agen", "payment_date"},
                                           {"invoice", "invoice_date"},         {"cash_flow", "trans_date"},
                                           {"cash_flow", "trans_date"},         {"accounting_trans", "trans_date"}};
    return tables;
}

void insertLedgerYears(TestDatabase& database, int years, int salesPerYear, int documentsPerYear)
{
    for (int kind = 0; kind < LedgerRow::KindCount; ++kind) {
        const LedgerTable& table = ledgerTables()[kind];
        RowValues values{{table.date, QString("current_date - i % %1").arg(365 * years)}, {"createdby", "1"}};
        if (kind == LedgerRow::Sale)
            values["acct_code"] = "'1-100'";
        else if (kind == LedgerRow::DebitEntry || kind == LedgerRow::CreditEntry)
            values["account_code"] = "'1-100'";
        else if (kind == LedgerRow::Transfer)
            values["from_account_id"] = values["to_account_id"] = "1";
        else
            values["bank_id"] = "1";
        insertRows(database, table.name, values, (kind == LedgerRow::Sale ? salesPerYear : documentsPerYear) * years);
    }
    database.run("ANALYZE");
}
