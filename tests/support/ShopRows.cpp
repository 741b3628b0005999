#include "support/ShopRows.h"

#include "support/TestDatabase.h"

void insertShop(TestDatabase& database)
{
    database.run("TRUNCATE supplier, agent, member, employee, meja, item, jenis_item, satuan, bank, keytable CASCADE");
    database.run("INSERT INTO bank (id, kode, nama, account_type, active, version) VALUES "
                 "(1, '1-100', 'Cash', 1, true, 1)");
    database.run("INSERT INTO supplier (id, kode, nama, alamat, telp, email, version) VALUES "
                 "(1, 'S1', 'Market', 'Street 1', '1', '', 1)");
    database.run("INSERT INTO agent (id, kode, nama, alamat, telp, email, commision_perc, version) VALUES "
                 "(1, 'A1', 'Guide', 'Street 2', '2', '', 10, 1)");
    database.run("INSERT INTO member (id, kode, nama, alamat, telp, discount_percentage, version) VALUES "
                 "(1, 'M1', 'Guest', 'Street 3', '3', 0, 1)");
    database.run("INSERT INTO employee (id, kode, nama, alamat, telp, email, version) VALUES "
                 "(1, 'E1', 'Ann', 'Street 4', '4', '', 1)");
    database.run("INSERT INTO meja (id, kode, nama, version) VALUES (1, 'T1', 'Window', 1)");
    database.run("INSERT INTO jenis_item (id, kode, nama, version) VALUES (1, 'FOOD', 'Food', 1)");
    database.run("INSERT INTO satuan (id, kode, nama, version) VALUES (1, 'KG', 'Kilogram', 1)");
    insertItem(database, 1, "RICE", "Rice");
    // The name is quoted, otherwise its letters would be read as a date format.
    database.run("INSERT INTO keytable (key_name, next_id, increment_by, format, description, no_zero, version) "
                 "SELECT name, 7, 1, '''' || name || '-''', name, 4, 1 FROM unnest(ARRAY['PO', 'NB', 'NR', 'TPH', "
                 "'KK', 'TR', 'TRD', 'TRF', 'TRP', 'PIU', 'KAG']) name");
}

int insertDineOrder(TestDatabase& database, const QList<QPair<int, int>>& lines, const QDate& date)
{
    const int id = database
                       .value(QString("INSERT INTO makan_ditempat (status, meja_id, pemesan, tgl, version) VALUES "
                                      "(1, 1, 'Mary', '%1', 1) RETURNING id")
                                  .arg(date.toString(Qt::ISODate)))
                       .toInt();
    for (const auto& line : lines)
        database.run(QString("INSERT INTO makan_ditempat_detail (makan_ditempat_id, item_id, qty, status, "
                             "total_currency, total_amount, price_each_currency, price_each_amount, version) VALUES "
                             "(%1, 1, %2, 1, 'Rp', %4, 'Rp', %3, 1)")
                         .arg(id)
                         .arg(line.first)
                         .arg(line.second)
                         .arg(qint64(line.first) * line.second));
    return id;
}

void insertSale(TestDatabase& database, const QDate& date, int item, const SaleMoney& money, int qty, int user)
{
    const auto amounts = [](const QStringList& sums) { return "'Rp', " + sums.join(", 'Rp', "); };
    const QString total = QString::number(money.total);
    const QString paid = QString::number(money.cash);
    const QString other = QString::number(money.other);
    const int invoice =
        database
            .value(QString("INSERT INTO invoice (sub_total_currency, sub_total_amount, "
                           "discount_currency, discount_amount, tax_currency, tax_amount, "
                           "grandtotal_currency, grandtotal_amount, amount_paid_currency, "
                           "amount_paid_amount, net_due_currency, net_due_amount, "
                           "other_payment_currency, other_payment_amount, service_currency, "
                           "service_amount, no, invoice_date, invoice_type, status, disc_perc, "
                           "tax_perc, service_perc, acct_code, createdby, version) VALUES "
                           "(%1, '', '%2', 'TRF', 1, 0, 0, 0, '1-100', %3, 1) RETURNING id")
                       .arg(amounts({total, "0", "0", total, paid, "0", other, "0"}), date.toString(Qt::ISODate))
                       .arg(user))
            .toInt();
    database.run(QString("INSERT INTO invoice_detail (price_each_currency, price_each_amount, discount_currency, "
                         "discount_amount, total_currency, total_amount, invoice_id, item_id, qty, version) VALUES "
                         "(%1, %2, %3, %4, 1)")
                     .arg(amounts({"1", "0", total}))
                     .arg(invoice)
                     .arg(item)
                     .arg(qty));
}

void insertItem(TestDatabase& database, int id, const QString& code, const QString& name, int type)
{
    database.run(QString("INSERT INTO item (id, kode, nama, jenis, item_type, is_group, satuan, harga_beli_currency, "
                         "harga_beli_amount, harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, "
                         "inventory_acct_code, cost_of_sales_acct_code, version) VALUES "
                         "(%1, '%2', '%3', %4, 1, false, 1, 'Rp', 10, 'Rp', 15, '1-100', '1-100', '1-100', 1)")
                     .arg(id)
                     .arg(code, name)
                     .arg(type));
}
