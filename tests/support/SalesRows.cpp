#include "support/SalesRows.h"

#include "support/LedgerRows.h"
#include "support/TestDatabase.h"

namespace
{
const char invoiceColumns[] =
    "INSERT INTO invoice (%1 invoice_date, no, status, invoice_type, sub_total_currency, sub_total_amount, disc_perc, "
    "discount_currency, discount_amount, tax_perc, tax_currency, tax_amount, grandtotal_currency, grandtotal_amount, "
    "amount_paid_currency, amount_paid_amount, net_due_currency, net_due_amount, other_payment_currency, "
    "other_payment_amount, service_perc, service_currency, service_amount, member_id, pemesan, acct_code, createdby, "
    "version) ";

QString idOrNull(int id) { return id == 0 ? QString("NULL") : QString::number(id); }

void insertLink(TestDatabase& database, const SaleRow& sale, int invoice)
{
    const QString member = "member_id=" + idOrNull(sale.member);
    const QString people = QString("employee_id=%1, agent_id=%2").arg(idOrNull(sale.employee), idOrNull(sale.agent));
    const QString link = QString("invoice_id=%1, ").arg(invoice);
    if (sale.type == "TRF") {
        insertRows(database, "invoice_fast_food", link + people + ", " + member);
        return;
    }
    const bool dine = sale.type == "TRD";
    const QString orders = dine ? "makan_ditempat" : "bawa_pulang";
    int order = sale.order;
    if (order == 0) {
        insertRows(database, orders,
                   QString("status=1, tgl='%1', ").arg(sale.date.toString(Qt::ISODate)) + member +
                       (dine ? QString(", meja_id=%1").arg(sale.table) : QString()));
        order = database.value("SELECT max(id) FROM " + orders).toInt();
    }
    insertRows(database, "invoice_" + orders,
               link + QString("%1_id=%2, ").arg(orders).arg(order) + (dine ? people : member));
}
} // namespace

void insertSeller(TestDatabase& database, int id, const QString& name)
{
    database.run("INSERT INTO user_group (id, name, version) VALUES (900, 'sellers', 1) ON CONFLICT DO NOTHING");
    database.run(QString("INSERT INTO users (id, first_name, last_name, username, password, user_group_id, currency, "
                         "version) VALUES (%1, '', '', '%2', '', 900, '', 1) ON CONFLICT (id) DO NOTHING")
                     .arg(id)
                     .arg(name));
}

int insertSale(TestDatabase& database, const SaleRow& sale)
{
    const QString values = QString("VALUES ('%1', '%2', %3, '%4', 'Rp', %5, 0, 'Rp', 0, 0, 'Rp', 0, 'Rp', %5, 'Rp', "
                                   "%6, 'Rp', %5 - %6 - %7, 'Rp', %7, 0, 'Rp', 0, %8, '%9'")
                               .arg(sale.date.toString(Qt::ISODate), sale.no)
                               .arg(sale.status)
                               .arg(sale.type)
                               .arg(sale.total)
                               .arg(sale.paid)
                               .arg(sale.other)
                               .arg(idOrNull(sale.member), sale.guest);
    const int invoice = database
                            .value(QString(invoiceColumns).arg(QString()) + values +
                                   QString(", '1-100', %1, 1) RETURNING id").arg(sale.user))
                            .toInt();
    insertRows(database, "invoice_detail",
               QString("invoice_id=%1, qty=1, price_each_amount=%2, total_amount=%2").arg(invoice).arg(sale.total));
    insertLink(database, sale, invoice);
    return invoice;
}

void insertManySales(TestDatabase& database, int count)
{
    // Of ten sales, seven are dine-in, two fast food, one take-away; one of nine is partly paid.
    database.run(
        QString(invoiceColumns).arg("id,") +
        QString("SELECT i, current_date - (i * 30 / %1), type || '-' || lpad(i::text, 6, '0'), "
                "CASE WHEN open THEN 3 ELSE 1 END, type, 'Rp', total, 0, 'Rp', 0, 0, 'Rp', 0, 'Rp', total, 'Rp', paid, "
                "'Rp', total - paid, 'Rp', 0, 0, 'Rp', 0, CASE WHEN i % 5 = 0 THEN 1 END, "
                "(ARRAY['Mary', 'Mr. Santoso', 'Table of eight', 'Dewi', 'Wedding party Kusuma'])[1 + i % 5], '1-100', "
                "1, 1 FROM (SELECT i, i % 9 = 0 AS open, total, CASE WHEN i % 9 = 0 THEN total / 2 ELSE total END AS "
                "paid, (ARRAY['TRD', 'TRD', 'TRD', 'TRD', 'TRD', 'TRD', 'TRD', 'TRF', 'TRF', 'TRP'])[1 + i % 10] AS "
                "type FROM (SELECT i, 25000 + (i * 7919 % 90) * 2500 AS total FROM generate_series(1, %1) i) sums) "
                "sales")
            .arg(count));
    // The order and the link of a sale have the same id as the sale.
    const QString from = " FROM invoice WHERE invoice_type = ";
    database.run("INSERT INTO makan_ditempat (id, status, tgl, meja_id, pemesan, version) SELECT id, 6, invoice_date, "
                 "1, pemesan, 1" +
                 from + "'TRD'");
    database.run("INSERT INTO bawa_pulang (id, status, tgl, pemesan, version) SELECT id, 6, invoice_date, pemesan, 1" +
                 from + "'TRP'");
    database.run("INSERT INTO invoice_makan_ditempat (invoice_id, makan_ditempat_id, employee_id, version) SELECT id, "
                 "id, 1, 1" +
                 from + "'TRD'");
    database.run("INSERT INTO invoice_fast_food (invoice_id, employee_id, agent_id, version) SELECT id, 1, 1, 1" +
                 from + "'TRF'");
    database.run("INSERT INTO invoice_bawa_pulang (invoice_id, bawa_pulang_id, version) SELECT id, id, 1" + from +
                 "'TRP'");
    database.run("ANALYZE");
}
