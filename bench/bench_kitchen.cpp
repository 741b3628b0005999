#include "BenchMain.h"

#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/kitchen/TabPesananMasuk.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"

#include <QTableView>

// One refresh of the kitchen page with its grids while an order is selected: 60 and 300 open orders of 8 lines, one in
// six to take away.

namespace
{
constexpr int linesEach = 8;

void tick(int orders)
{
    // Never deleted: used for the whole run.
    static auto* page = [] {
        auto* made = new TabPesananMasuk;
        made->resize(1000, 640);
        made->show();
        made->findChild<QTableView*>("tblQueue")->selectRow(3);
        return made;
    }();
    page->autoRefresh();
    if (page->findChild<QTableView*>("tblQueue")->model()->rowCount() != orders ||
        page->findChild<QTableView*>("tblMenu")->model()->rowCount() != linesEach)
        qFatal("the kitchen is not what was laid down");
}

int readByHand(ByHand& byHand, const char* orderStatement, const char* lineStatement)
{
    const auto orders = ByHand::rows(byHand.execute(orderStatement).get());
    std::string ids = "{";
    for (const PlainRow& order : orders)
        ids += (ids.size() > 1 ? "," : "") + std::to_string(order.integers[0]);
    if (ByHand::rows(byHand.execute(lineStatement, {ids + '}'}).get()).size() != orders.size() * linesEach)
        qFatal("the kitchen is not what was laid down");
    return static_cast<int>(orders.size());
}

void layDownOrders(TestDatabase& database, const QString& table, const QString& extraColumn, const QString& extraValue,
                   int count)
{
    database.run(QString("INSERT INTO %1 (status, %2 pemesan, tgl, createdby, createdtime, version) SELECT 1, %3 "
                         "'Guest ' || i, current_date, 1, now(), 1 FROM generate_series(1, %4) i")
                     .arg(table, extraColumn, extraValue)
                     .arg(count));
    database.run(QString("INSERT INTO %1_detail (%1_id, item_id, qty, status, total_currency, total_amount, "
                         "price_each_currency, price_each_amount, description, createdby, createdtime, version) "
                         "SELECT o.id, (SELECT min(id) FROM item WHERE kode = 'I' || (o.id * 7 + n * 13) % 200 + 1), "
                         "1 + n % 3, 1, 'Rp', 25000, 'Rp', 25000, 'not too hot', 1, now(), 1 "
                         "FROM %1 o, generate_series(1, %2) n")
                     .arg(table)
                     .arg(linesEach));
}

void enterTick(TestDatabase& database, ByHand& byHand, int orders)
{
    const auto prepare = [&database, orders] {
        static int open = 0;
        if (open == orders)
            return;
        open = orders;
        for (const auto& part :
             {qMakePair(QString("makan_ditempat"), orders * 5 / 6), qMakePair(QString("bawa_pulang"), orders / 6)}) {
            database.run(QString("UPDATE %1 SET status = CASE WHEN id <= %2 THEN 1 ELSE 6 END")
                             .arg(part.first)
                             .arg(part.second));
            database.run("VACUUM ANALYZE " + part.first);
        }
    };
    const auto handTick = [&byHand, orders] {
        if (readByHand(byHand, "dine", "dine lines") + readByHand(byHand, "away", "away lines") != orders)
            qFatal("the kitchen is not what was laid down");
    };
    enter({QString("A tick of the kitchen: %1 orders of %2 lines").arg(orders).arg(linesEach).toStdString(),
           [orders] { tick(orders); }, handTick, prepare});
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    database.run("DELETE FROM meja");
    database.run("INSERT INTO meja (kode, nama, createdby, createdtime, version) SELECT 'T' || i, 'Table ' || i, 1, "
                 "now(), 1 FROM generate_series(1, 250) i");
    database.run("INSERT INTO item (kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, "
                 "harga_beli_amount, harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, "
                 "inventory_acct_code, cost_of_sales_acct_code, createdby, createdtime, version) "
                 "SELECT 'I' || i, 1, false, 'Dish number ' || i, 1, 2, 'Rp', 12000, 'Rp', 25000 + i * 500, '4050', "
                 "'1200', '5000', 1, now(), 1 FROM generate_series(1, 200) i");
    layDownOrders(database, "makan_ditempat", "meja_id,", "(SELECT id FROM meja WHERE kode = 'T' || i),", 250);
    layDownOrders(database, "bawa_pulang", "", "", 50);
    database.run("ANALYZE");

    const ZavelMapperRegistry* mappers = ZavelMapperRegistry::instance();
    DataMapperOrder* dine = mappers->makanDitempatMapper();
    DataMapperOrder* away = mappers->bawaPulangMapper();
    const QString open = " where status is null or (status is not null and status <> 6)  order by ";
    const QString ofOrders = " = ANY(:ids) order by ";
    byHand.prepare("dine", dine->selectStatement() + open + "makan_ditempat.id");
    byHand.prepare("dine lines", dine->lineMapper()->selectStatement() + " where makan_ditempat_id" + ofOrders +
                                     "makan_ditempat_detail.id");
    byHand.prepare("away", away->selectStatement() + open + "bawa_pulang.id");
    byHand.prepare("away lines", away->lineMapper()->selectStatement() + " where bawa_pulang_id" + ofOrders +
                                     "bawa_pulang_detail.id");
    for (int orders : {60, 300})
        enterTick(database, byHand, orders);
}
