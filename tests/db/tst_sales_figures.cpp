#include "app/context/EntityPool.h"
#include "support/DatabaseTest.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/service/BusinessPenjualan.h"

namespace
{
const QDate first(2026, 2, 27);
const QDate last(2026, 3, 2);
} // namespace

/** The sums of what was sold, by day, by month and by item. */
class TestSalesFigures : public DatabaseTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepDatabase();
        insertShop(*m_database);
        m_sales = service<BusinessPenjualan>("Sales");
        run("INSERT INTO jenis_item (id, kode, nama, version) VALUES (2, 'DRINK', 'Drink', 1)");
        insertItem(*m_database, 2, "TEA", "Tea", 2);
        insertItem(*m_database, 3, "SOUP", "Soup");
        insertSale(*m_database, {2026, 2, 26}, 1, {5000, 5000, 0}, 50, 1);
        insertSale(*m_database, {2026, 2, 27}, 1, {900, 1000, 0}, 3, 1);
        insertSale(*m_database, {2026, 2, 27}, 2, {400, 100, 300}, 8, 2);
        // The sum exceeds 32 bits.
        insertSale(*m_database, {2026, 3, 2}, 3, {2000000000, 2000000000, 0}, 3, 2);
        insertSale(*m_database, {2026, 3, 2}, 3, {2000000000, 0, 0}, 4, 2);
        insertSale(*m_database, {2026, 3, 3}, 1, {7000, 7000, 0}, 70, 2);
    }

    void salesAreSummedByDayAndByMonth_data()
    {
        const auto row = addColumns<bool, int, QStringList>("monthly", "user", "sums");
        row("by day, without the change handed back", false, -1,
            {"2026-02-27 2 1300 1000 300", "2026-03-02 2 4000000000 2000000000 0"});
        row("by day, of one user", false, 1, {"2026-02-27 1 900 900 0"});
        row("by day, of a user who sold nothing", false, 3, {});
        row("by month", true, -1, {"2026-02-01 2 1300 1000 300", "2026-03-01 2 4000000000 2000000000 0"});
        row("by month, of one user", true, 1, {"2026-02-01 1 900 900 0"});
    }
    void salesAreSummedByDayAndByMonth()
    {
        QFETCH(bool, monthly);
        QFETCH(int, user);
        const EntityPoolScope scope(m_pool);
        QStringList sums;
        for (const EntitySalesSummaryInfo* sum :
             monthly ? m_sales->getMonthlySales(first, last, user) : m_sales->getDailySales(first, last, user))
            sums.append(QString("%1 %2 %3 %4 %5")
                            .arg(sum->getDate().toString(Qt::ISODate))
                            .arg(sum->getSalesCount())
                            .arg(sum->getTotal())
                            .arg(sum->getCash())
                            .arg(sum->getCredit()));
        QVERIFY2(!m_sales->hasError(), qPrintable(m_sales->takeErrors()));
        QTEST(sums, "sums");
    }

    void soldItemsAreSummedAndSorted_data()
    {
        const auto row = addColumns<QString, QString, QString, QStringList>("direction", "column", "itemType", "items");
        const QString rice = "RICE Rice FOOD 3 900";
        const QString tea = "TEA Tea DRINK 8 400";
        const QString soup = "SOUP Soup FOOD 7 4000000000";
        row("best sellers first", "desc", "total_qty", "", {tea, soup, rice});
        row("least money first", "ASC", "total_price", "", {tea, rice, soup});
        row("by name", "asc", "Nama", "", {rice, soup, tea});
        row("equal ones by their codes", "desc", "item_type", "", {rice, soup, tea});
        row("of one type", "desc", "kode", "FOOD", {soup, rice});
        row("of a type with a quote in it", "desc", "kode", "FO'OD", {});
    }
    void soldItemsAreSummedAndSorted()
    {
        FETCH(QString, direction, column, itemType);
        const EntityPoolScope scope(m_pool);
        QStringList items;
        for (const EntitySoldItem* item : m_sales->getSoldItems(first, last, direction, column, itemType))
            items.append(QString("%1 %2 %3 %4 %5")
                             .arg(item->getKode(), item->getNama(), item->getItemType())
                             .arg(item->getTotalQty())
                             .arg(item->getTotalPrice()));
        QVERIFY2(!m_sales->hasError(), qPrintable(m_sales->takeErrors()));
        QTEST(items, "items");
    }

    void anUnknownOrderIsRefusedBeforeItReachesTheDatabase_data()
    {
        const auto row = addColumns<QString, QString>("direction", "column");
        row("column", "desc", "total_qty; drop table invoice");
        row("direction", "desc; drop table invoice", "total_qty");
        row("the wrong way round", "total_qty", "desc");
        row("empty", "", "");
    }
    void anUnknownOrderIsRefusedBeforeItReachesTheDatabase()
    {
        FETCH(QString, direction, column);
        const StatementCount statements;
        QVERIFY(m_sales->getSoldItems(first, last, direction, column, "").isEmpty());
        QCOMPARE(statements.count(), 0);
        QCOMPARE(m_sales->takeErrors(), QString("The items can not be sorted by: %1 %2\r\n").arg(column, direction));
    }

private:
    BusinessPenjualan* m_sales = nullptr;
    EntityPool m_pool;
};

QTEST_MAIN(TestSalesFigures)
#include "tst_sales_figures.moc"
