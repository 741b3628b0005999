#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/BusinessStokAwal.h"
#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/inventory/stock/StockMovements.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/EntityStokAwal.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/DatabaseTest.h"
#include "support/StockRows.h"

#include <random>

namespace
{
/** Something that happened to an item's stock, on a day counted from the first. */
struct Event
{
    enum Kind { Opening, Purchase, Sale, Return, CancelledReturn, Count };
    Kind kind;
    int day;
    int quantity;
};
using History = QVector<Event>;
} // namespace
Q_DECLARE_METATYPE(Event)

namespace
{

const QDate firstDay(2026, 1, 28);

/** The quantity on hand of all in one plain statement: it joins every line with its document. */
const char* const plainly = R"(
    with take as (select distinct on (item_id) item_id, tanggal, qty from stock_take where tanggal <= :date
    order by item_id, tanggal desc, id desc)
    select item.id, coalesce(take.qty, stok_awal.jumlah, 0) + coalesce(acquired.qty, 0) - coalesce(used.qty, 0) -
    coalesce(returned.qty, 0) as qty
    from item left join take on take.item_id = item.id left join stok_awal on stok_awal.item_id = item.id
    left join (select line.item_id, sum(line.qty) as qty from acquisition inner join acquisition_detail line
        on acquisition.id = line.acquisition_id left join take on take.item_id = line.item_id
        where acquisition.purchase_date <= :date
        and (take.tanggal is null or acquisition.purchase_date >= take.tanggal) group by line.item_id)
    acquired on acquired.item_id = item.id
    left join (select line.item_id, sum(line.qty) as qty from invoice inner join invoice_detail line
        on invoice.id = line.invoice_id left join take on take.item_id = line.item_id
        where invoice.invoice_date <= :date
        and (take.tanggal is null or invoice.invoice_date >= take.tanggal) group by line.item_id)
    used on used.item_id = item.id
    left join (select line.item_id, sum(line.qty_returned) as qty from credit_note inner join credit_note_detail line
        on credit_note.id = line.credit_note_id left join take on take.item_id = line.item_id
        where credit_note.credit_note_date <= :date
        and (take.tanggal is null or credit_note.credit_note_date >= take.tanggal) and credit_note.status <> 4
        group by line.item_id)
    returned on returned.item_id = item.id)";

/** The expected quantity, calculated by the test. */
int reckoned(const History& history, int day)
{
    int start = -1;
    int quantity = 0;
    for (const Event& event : history) {
        if (event.kind == Event::Opening && start < 0)
            quantity = event.quantity;
        // In the order of entry: of two counts on one day, the one entered last counts.
        if (event.kind == Event::Count && event.day <= day && event.day >= start) {
            start = event.day;
            quantity = event.quantity;
        }
    }
    for (const Event& event : history) {
        if (event.day < start || event.day > day)
            continue;
        if (event.kind == Event::Purchase)
            quantity += event.quantity;
        if (event.kind == Event::Sale || event.kind == Event::Return)
            quantity -= event.quantity;
    }
    return quantity;
}
} // namespace

/** How much is on hand, and the journal behind the stock card. */
class TestStock : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        // The documents around the lines do not matter here.
        run("SET session_replication_role = replica");
        m_inventory = service<BusinessInventory>("Inventory");
    }

private slots:
    void everyHistoryGivesWhatPaperGives_data() { addSeeds({1, 2, 3, 4, 5}); }
    void everyHistoryGivesWhatPaperGives()
    {
        QFETCH(quint32, seed);
        std::mt19937 dice(seed);
        const auto roll = [&dice](int sides) { return int(dice() % unsigned(sides)); };
        constexpr int days = 8;

        QMap<int, History> histories;
        for (const char* code : {"aym", "ns", "fr", "llp"}) {
            // An imported item may have no beginning balance.
            History history{{Event::Opening, 0, roll(50)}};
            if (roll(4) == 0) {
                run("DELETE FROM stok_awal WHERE item_id = " + QString::number(idOf(code)));
                history.clear();
            }
            const int length = roll(16);
            for (int i = 0; i < length; ++i)
                history.append({Event::Kind(1 + roll(5)), roll(days), roll(20)});
            histories.insert(idOf(code), history);
        }
        for (auto item = histories.begin(); item != histories.end(); ++item) {
            for (const Event& event : item.value())
                happen(item.key(), event);
        }
        for (int day = -1; day <= days; ++day) {
            const QHash<int, int> all = m_inventory->quantitiesOnHand(firstDay.addDays(day));
            for (auto item = histories.begin(); item != histories.end(); ++item) {
                const int expected = reckoned(item.value(), day);
                EntityItem asked;
                asked.setId(item.key());
                QCOMPARE(m_inventory->getQuantityOnHand(&asked, firstDay.addDays(day)), expected);
                QCOMPARE(all.value(item.key(), -12345), expected);
            }
        }
        QVERIFY(!m_inventory->hasError());
    }

    void theShortWayGivesWhatThePlainOneGives_data() { addSeeds({6, 7}); }
    void theShortWayGivesWhatThePlainOneGives()
    {
        QFETCH(quint32, seed);
        // Most invoices in the order of their dates, as in a restaurant, some dated back or ahead; items without
        // anything, and some that were counted, also twice a day.
        constexpr int items = 60;
        trade(items, 1);
        run(QString("SELECT setseed(%1)").arg(seed / 10.0));
        run("UPDATE invoice SET invoice_date = current_date - 400 + (random() * 420)::int WHERE random() < 0.1");
        run("UPDATE credit_note SET status = 1 + (random() * 3)::int");
        run("INSERT INTO stock_take (item_id, tanggal, qty, source_acct_code) SELECT id, current_date - day, "
            "random() * 50, '1-100' FROM item, generate_series(0, 360, 40) day WHERE random() < 0.2");
        run("INSERT INTO stock_take (item_id, tanggal, qty, source_acct_code) SELECT item_id, tanggal, random() * 50, "
            "'1-100' FROM stock_take WHERE random() < 0.2");
        run("DELETE FROM stok_awal WHERE random() < 0.2");
        for (const char* lines : {"invoice_detail", "acquisition_detail", "credit_note_detail"})
            run(QString("DELETE FROM %1 WHERE item_id % 7 = 0").arg(lines));
        for (const int daysAgo : {-30, 0, 1, 39, 40, 200, 390, 500}) {
            const QDate day = QDate::currentDate().addDays(-daysAgo);
            const QString expected =
                value("SELECT string_agg(id || ':' || qty, ' ' ORDER BY id) FROM (" +
                      QString(plainly).replace(":date", '\'' + day.toString(Qt::ISODate) + '\'') + ") stock");
            const QHash<int, int> quantities = m_inventory->quantitiesOnHand(day);
            QStringList all;
            QStringList each;
            for (int id = 1; id <= items; ++id) {
                EntityItem item;
                item.setId(id);
                all.append(QString("%1:%2").arg(id).arg(quantities.value(id, -12345)));
                each.append(QString("%1:%2").arg(id).arg(m_inventory->getQuantityOnHand(&item, day)));
            }
            QCOMPARE(all.join(' '), expected);
            QCOMPARE(each.join(' '), expected);
        }
        QVERIFY(!m_inventory->hasError());
    }

    void yearsOfInvoicesAreNotRead()
    {
        trade(300, 5);
        // As the server does by itself from time to time; an index alone tells nothing of rows just written.
        run("VACUUM ANALYZE");
        // An item that was counted, and one that never was.
        for (const QString& plan :
             {planOf(StockMovements::onHandStatement(), 0), planOf(StockMovements::onHandStatement(true), 3),
              planOf(StockMovements::onHandStatement(true), 4)}) {
            QVERIFY2(!plan.contains("Seq Scan on invoice"), qPrintable(plan));
            QVERIFY2(plan.contains("Index Only Scan using invoice_detail_item_idx"), qPrintable(plan));
        }
    }

    void theWholeStockIsOneStatement()
    {
        const StatementCount statements;
        QCOMPARE(m_inventory->quantitiesOnHand(firstDay).size(), 4);
        QCOMPARE(statements.count(), 1);
    }

    void aStockThatCannotBeReadIsTold()
    {
        run("ALTER TABLE credit_note RENAME TO elsewhere");
        QVERIFY(m_inventory->quantitiesOnHand(firstDay).isEmpty());
        QCOMPARE(m_inventory->errors().keys(), QStringList{"quantitiesOnHand"});
        m_inventory->clearErrors();
    }

    void anAdjustmentStandsInTheJournalUntilItIsRemoved()
    {
        run("SET session_replication_role = origin");
        auto* rice = service<BusinessItem>("Item")->findByCode("ns");
        const auto adjust = [&](int by, const QString& account = "5000") {
            auto take = std::make_unique<EntityStockTake>();
            take->setItem(rice);
            take->setStockTakeDate(firstDay);
            take->setQtyBefore(10);
            take->setQtyAdj(by);
            take->setQty(10 + by);
            take->setSourceAcctCode(account);
            return m_inventory->addInventoryAdjustment(take.get()) ? std::move(take) : nullptr;
        };
        const auto journal = [this] {
            return value("SELECT string_agg(qty_in || '/' || qty_out, ' ' ORDER BY id) FROM item_history");
        };
        QVERIFY(adjust(5));
        const auto loss = adjust(-3);
        QVERIFY(loss);
        QCOMPARE(journal(), QString("5/0 0/3"));
        QCOMPARE(m_inventory->getQuantityOnHand(rice, firstDay), 7);
        QVERIFY(m_inventory->stockTakeRemove(loss.get()));
        QCOMPARE(journal(), QString("5/0"));
        QCOMPARE(m_inventory->getQuantityOnHand(rice, firstDay), 15);

        // Failed writes are reported under the operation's name; an adjustment without a row does not change.
        QVERIFY(!m_inventory->stockTakeRemove(loss.get()));
        QVERIFY(!adjust(1, "nobody"));
        QCOMPARE(m_inventory->errors().keys(), (QStringList{"addInventoryAdjustment", "stockTakeRemove"}));
        m_inventory->clearErrors();
        run("ALTER TABLE item_history RENAME TO elsewhere");
        QVERIFY(!adjust(1));
        QCOMPARE(m_inventory->errors().keys(), QStringList{"addInventoryAdjustment"});
        m_inventory->clearErrors();
        QCOMPARE(count("stock_take"), 2);
        run("ALTER TABLE acquisition RENAME TO away");
        (void)m_inventory->getQuantityOnHand(rice, firstDay);
        QVERIFY(m_inventory->takeErrors().contains("acquisition"));
    }

    void anItemHasOneBeginningBalance()
    {
        run("SET session_replication_role = origin");
        auto* balances = service<BusinessStokAwal>("Beginning Balance");
        EntityStokAwal balance;
        balance.setItem(service<BusinessItem>("Item")->findByCode("ns"));
        balance.setHarga(new Money(&balance, 3, "Rp"));
        balance.setJumlah(12);
        // Two workstations found no balance; the second one to save gets an error.
        QVERIFY(!balances->insert(&balance));
        QCOMPARE(balances->takeErrors(), QString("This item has a beginning balance already, please edit it\r\n"));
        QVERIFY(balances->enter(&balance));
        QCOMPARE(m_inventory->getQuantityOnHand(balance.getItem(), firstDay), 12);
        run("DELETE FROM stok_awal");
        QVERIFY(balances->enter(&balance));
        QCOMPARE(value("SELECT string_agg(jumlah || ' ' || harga_amount, ',') FROM stok_awal"), QString("12 3"));
    }

    void aMonthsCardCostsTheSameAfterFiveYears()
    {
        DataMapperItemHistory* journal = PosMapperRegistry::instance()->itemHistoryMapper();
        const QString month = " where trans_date >= current_date - 30 and trans_date <= current_date and item_id = 1 "
                              "order by trans_date asc, item_history.id asc";
        QMap<int, int> pages;
        for (const int years : {1, 5}) {
            trade(300 * years, years);
            // Counts the pages read, in memory or on disk; a time would depend on other programs.
            const QString plan = value("EXPLAIN (ANALYZE, BUFFERS, FORMAT JSON) " + journal->selectStatement() + month);
            QVERIFY2(plan.contains("item_history_item_id_trans_date_idx"), qPrintable(plan));
            static const QRegularExpression hit(R"("Shared Hit Blocks": (\d+))");
            pages[years] = hit.match(plan).captured(1).toInt();
            const StatementCount statements;
            const QDate today = QDate::currentDate();
            QVERIFY(m_inventory->findAllKartuStok({today.addDays(-30), today, 1}).size() > 31);
            QCOMPARE(statements.count(), 2);
        }
        QVERIFY(pages[1] > 0);
        QVERIFY2(pages[5] <= pages[1] + 10, qPrintable(QString("%1, then %2").arg(pages[1]).arg(pages[5])));
    }

private:
    /** A database with nothing but this trade. */
    void trade(int items, int years)
    {
        m_database.reset();
        m_database = std::make_unique<TestDatabase>();
        insertShop(*m_database);
        insertManyMovements(*m_database, items, years);
    }

    /** The plan for today, and the item if the statement asks for one. */
    [[nodiscard]] static QString planOf(QString statement, int item)
    {
        statement.replace(":date::date", "current_date").replace(":item_id", QString::number(item));
        QString plan;
        KorQuery query;
        query.exec("EXPLAIN " + statement);
        while (query.next())
            plan += query.value(0).toString() + '\n';
        return plan + query.failure();
    }

    void happen(int itemId, const Event& event)
    {
        const QString date = '\'' + firstDay.addDays(event.day).toString(Qt::ISODate) + '\'';
        const QString item = QString::number(itemId);
        const QString quantity = QString::number(event.quantity);
        const auto document = [&](const QString& master, const QString& dateColumn, const QString& line,
                                  const QString& key, const QString& quantityColumn, const QString& status) {
            const QString id = QString::number(add(master, {{dateColumn, date}, {"status", status}}));
            // The same item may be on two lines of a document.
            for (const int part : {event.quantity / 3, event.quantity - event.quantity / 3})
                add(line, {{key, id}, {"item_id", item}, {quantityColumn, QString::number(part)}});
        };
        const auto creditNote = [&](const QString& status) {
            document("credit_note", "credit_note_date", "credit_note_detail", "credit_note_id", "qty_returned", status);
        };
        switch (event.kind) {
        case Event::Opening:
            run("UPDATE stok_awal SET jumlah = " + quantity + " WHERE item_id = " + item);
            break;
        case Event::Purchase:
            document("acquisition", "purchase_date", "acquisition_detail", "acquisition_id", "qty", "2");
            break;
        case Event::Sale:
            document("invoice", "invoice_date", "invoice_detail", "invoice_id", "qty", "1");
            break;
        case Event::Return:
            creditNote(QString::number(1 + event.quantity % 3));
            break;
        case Event::CancelledReturn:
            creditNote("4");
            break;
        case Event::Count:
            add("stock_take",
                {{"item_id", item}, {"tanggal", date}, {"qty", quantity}, {"source_acct_code", "'5000'"}});
            break;
        }
    }

    int add(const QString& table, const RowValues& values)
    {
        insertRows(*m_database, table, values);
        return value("SELECT max(id) FROM " + table).toInt();
    }

    [[nodiscard]] int idOf(const QString& code) { return service<BusinessItem>("Item")->findByCode(code)->getId(); }

    BusinessInventory* m_inventory = nullptr;
};

QTEST_MAIN(TestStock)
#include "tst_stock.moc"
