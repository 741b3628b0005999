#include "BenchMain.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceDirectory.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/TabMakanDitempat.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/BusinessMeja.h"
#include "zavel/tables/DataMapperMeja.h"

#include <QApplication>

// The table board with 100 tables, 60 of them with an order of 8 lines.

namespace
{
void refresh()
{
    EntityPool read;
    const EntityPoolScope scope(read);
    const auto orders = service<BusinessPenjualan>("Sales")->getMakanDitempatList(0, QString());
    const auto tables = service<BusinessMeja>("Table")->findAll(QString());
    if (orders.size() != 60 || tables.size() != 100 || orders.first()->getDetails().size() != 8)
        qFatal("the board is not what was laid down");
}

void refreshByHand(ByHand& byHand)
{
    const auto orders = ByHand::rows(byHand.execute("orders").get());
    std::string ids = "{";
    for (const PlainRow& order : orders)
        ids += (ids.size() > 1 ? "," : "") + std::to_string(order.integers[0]);
    const auto lines = ByHand::rows(byHand.execute("lines", {ids + '}'}).get());
    const auto tables = ByHand::rows(byHand.execute("tables", {"%%", "%%"}).get());
    if (orders.size() != 60 || tables.size() != 100 || lines.size() != 480)
        qFatal("the board is not what was laid down");
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    database.run("DELETE FROM meja");
    database.run("INSERT INTO meja (kode, nama, createdby, createdtime, version) SELECT 'T' || i, 'Table ' || i, 1, "
                 "now(), 1 FROM generate_series(1, 100) i");
    database.run("INSERT INTO item (kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, "
                 "harga_beli_amount, harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, "
                 "inventory_acct_code, cost_of_sales_acct_code, createdby, createdtime, version) "
                 "SELECT 'I' || i, 1, false, 'Dish number ' || i, 1, 2, 'Rp', 12000, 'Rp', 25000 + i * 500, '4050', "
                 "'1200', '5000', 1, now(), 1 FROM generate_series(1, 200) i");
    database.run("INSERT INTO makan_ditempat (status, meja_id, pemesan, tgl, createdby, createdtime, version) "
                 "SELECT 1, id, 'Guest ' || id, current_date, 1, now(), 1 FROM meja ORDER BY id LIMIT 60");
    database.run("INSERT INTO makan_ditempat_detail (makan_ditempat_id, item_id, qty, status, total_currency, "
                 "total_amount, price_each_currency, price_each_amount, description, createdby, createdtime, version) "
                 "SELECT o.id, (SELECT min(id) FROM item WHERE kode = 'I' || (o.id * 7 + n * 13) % 200 + 1), 1 + n % "
                 "3, 1, 'Rp', 25000, 'Rp', 25000, 'not too hot', 1, now(), 1 "
                 "FROM makan_ditempat o, generate_series(1, 8) n");
    database.run("ANALYZE");

    const ZavelMapperRegistry* mappers = ZavelMapperRegistry::instance();
    DataMapperMakanDitempat* orders = mappers->makanDitempatMapper();
    byHand.prepare("orders", orders->selectStatement() + " where status is null or (status is not null and status <> "
                                                         "6)  order by makan_ditempat.id");
    byHand.prepare("lines", orders->lineMapper()->selectStatement() +
                                " where makan_ditempat_id = ANY(:ids) order by makan_ditempat_detail.id");
    byHand.prepare("tables", mappers->mejaMapper()->selectStatement() +
                                 " where lower(kode) like  :prm0 OR lower(nama) like  :prm1 order by nama asc");

    enter({"Refresh the board: 100 tables, 60 orders of 8 lines", refresh, [&byHand] { refreshByHand(byHand); }});
    // Stays open until the program ends, and is never deleted.
    auto* page = new TabMakanDitempat;
    page->resize(1000, 700);
    page->show();
    enter({"The same on its page, painted",
           [page] {
               page->on_btnRefresh_clicked();
               QApplication::processEvents();
           },
           [&byHand] { refreshByHand(byHand); }});
}
