#include "support/ShopRows.h"

#include "support/LedgerRows.h"
#include "support/TestDatabase.h"

void insertShop(TestDatabase& database)
{
    database.run("TRUNCATE supplier, agent, member, employee, meja, item, jenis_item, satuan, bank, keytable CASCADE");
    insertRows(database, "bank", "id=1, kode='1-100', nama='Cash', active=true");
    insertRows(database, "supplier", "id=1, kode='S1', nama='Market', alamat='Street 1', telp='1'");
    insertRows(database, "agent", "id=1, kode='A1', nama='Guide', alamat='Street 2', telp='2', commision_perc=10");
    insertRows(database, "member", "id=1, kode='M1', nama='Guest', alamat='Street 3', telp='3'");
    insertRows(database, "employee", "id=1, kode='E1', nama='Ann', alamat='Street 4', telp='4'");
    insertRows(database, "meja", "id=1, kode='T1', nama='Window'");
    insertRows(database, "jenis_item", "id=1, kode='FOOD', nama='Food'");
    insertRows(database, "satuan", "id=1, kode='KG', nama='Kilogram'");
    insertItem(database, 1, "RICE", "Rice");
    // The name is quoted, otherwise its letters would be read as a date format.
    database.run("INSERT INTO keytable (key_name, next_id, increment_by, format, description, no_zero, version) "
                 "SELECT name, 7, 1, '''' || name || '-''', name, 4, 1 FROM unnest(ARRAY['PO', 'NB', 'NR', 'TPH', "
                 "'KK', 'TR', 'TRD', 'TRF', 'TRP', 'PIU', 'KAG']) name");
}

int insertDineOrder(TestDatabase& database, const QList<QPair<int, int>>& lines, const QDate& date)
{
    insertRows(database, "makan_ditempat",
               QString("status=1, pemesan='Mary', tgl='%1'").arg(date.toString(Qt::ISODate)));
    const int id = database.value("SELECT max(id) FROM makan_ditempat").toInt();
    for (const auto& line : lines)
        insertRows(database, "makan_ditempat_detail",
                   QString("makan_ditempat_id=%1, qty=%2, status=1, price_each_amount=%3, total_amount=%4")
                       .arg(id)
                       .arg(line.first)
                       .arg(line.second)
                       .arg(qint64(line.first) * line.second));
    return id;
}

void insertSale(TestDatabase& database, const QDate& date, int item, const SaleMoney& money, int qty, int user)
{
    insertRows(database, "invoice",
               QString("invoice_date='%1', invoice_type='TRF', status=1, sub_total_amount=%2, grandtotal_amount=%2, "
                       "amount_paid_amount=%3, other_payment_amount=%4, acct_code='1-100', createdby=%5")
                   .arg(date.toString(Qt::ISODate))
                   .arg(money.total)
                   .arg(money.cash)
                   .arg(money.other)
                   .arg(user));
    insertRows(database, "invoice_detail",
               QString("invoice_id=(SELECT max(id) FROM invoice), item_id=%1, qty=%2, total_amount=%3")
                   .arg(item)
                   .arg(qty)
                   .arg(money.total));
}

void insertItem(TestDatabase& database, int id, const QString& code, const QString& name, int type)
{
    insertRows(database, "item",
               {{"id", QString::number(id)},
                {"kode", '\'' + code + '\''},
                {"nama", '\'' + name + '\''},
                {"jenis", QString::number(type)},
                {"harga_beli_amount", "10"},
                {"harga_jual_lokal_amount", "15"},
                {"sales_acct_code", "'1-100'"},
                {"inventory_acct_code", "'1-100'"},
                {"cost_of_sales_acct_code", "'1-100'"}});
}
