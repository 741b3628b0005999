#include "kor/business/KorServiceDirectory.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/BusinessStokAwal.h"
#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/inventory/stock/DataMapperStockTake.h"
#include "pos/inventory/stock/EntityItemHistory.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/EntityStokAwal.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/Rows.h"
#include "support/ShopRows.h"
#include "support/StockRows.h"
#include "support/TestDatabase.h"

#include <QRegularExpression>
#include <QTest>

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

/** What a storekeeper reckons with pencil and paper. */
int reckoned(const History& history, int day)
{
    int start = -1;
    int quantity = 0;
    for (const Event& event : history) {
        if (event.kind == Event::Opening && start < 0)
            quantity = event.quantity;
        // In the order of entry: of two counts on one day the later entered one stays.
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
class TestStock : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        // The documents around the lines do not matter here.
        m_database->run("SET session_replication_role = replica");
        m_inventory = service<BusinessInventory>("Inventory");
    }

    void cleanup() { m_database.reset(); }

    void whatIsOnHand_data()
    {
        addColumns<History, int>("history", "onHand");
        using E = Event;
        const int today = 5;

        addRow("nothing ever happened", History{}, 0);
        addRow("a beginning balance", History{{E::Opening, 0, 7}}, 7);
        addRow("bought, sold and sent back",
               History{{E::Opening, 0, 7}, {E::Purchase, 1, 20}, {E::Sale, 2, 4}, {E::Return, 3, 3}}, 20);
        addRow("more sold than there was", History{{E::Sale, 1, 9}}, -9);
        addRow("today counts, tomorrow does not",
               History{{E::Purchase, today, 5}, {E::Purchase, today + 1, 50}, {E::Sale, today, 1}}, 4);
        addRow("a count wipes out what was before",
               History{{E::Opening, 0, 7}, {E::Purchase, 1, 20}, {E::Count, 2, 11}, {E::Sale, 3, 1}}, 10);
        addRow("a later count is not known yet", History{{E::Opening, 0, 7}, {E::Count, today + 1, 100}}, 7);
        addRow("of two counts on one day the last entered",
               History{{E::Count, 2, 30}, {E::Count, 2, 12}, {E::Count, 1, 99}}, 12);
        addRow("a sale on the day of the count, rung up before it", History{{E::Sale, 2, 3}, {E::Count, 2, 10}}, 7);
        addRow("a cancelled return", History{{E::Opening, 0, 7}, {E::CancelledReturn, 1, 5}}, 7);
    }

    void whatIsOnHand()
    {
        QFETCH(History, history);
        const KorEntity* rice = service<BusinessItem>("Item")->findByCode("ns");
        for (const Event& event : history)
            happen(rice->getId(), event);
        const QDate today = firstDay.addDays(5);
        QTEST(m_inventory->getQuantityOnHand(rice, today), "onHand");
        QTEST(m_inventory->quantitiesOnHand(today).value(rice->getId(), -12345), "onHand");
    }

    void everyHistoryGivesWhatPaperGives_data()
    {
        addColumns<int>("seed");
        for (int seed = 1; seed <= 5; ++seed)
            QTest::addRow("history %d", seed) << seed;
    }

    void everyHistoryGivesWhatPaperGives()
    {
        QFETCH(int, seed);
        std::mt19937 dice(seed);
        const auto roll = [&dice](int sides) { return int(dice() % unsigned(sides)); };
        constexpr int days = 8;

        QMap<int, History> histories;
        for (const char* code : {"aym", "ns", "fr", "llp"}) {
            // An item that came from elsewhere may have no balance.
            History history{{Event::Opening, 0, roll(50)}};
            if (roll(4) == 0) {
                m_database->run("DELETE FROM stok_awal WHERE item_id = " + QString::number(idOf(code)));
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

    void theWholeStockIsOneStatement()
    {
        const StatementCount statements;
        QCOMPARE(m_inventory->quantitiesOnHand(firstDay).size(), 4);
        QCOMPARE(statements.count(), 1);
    }

    void aStockThatCannotBeReadIsTold()
    {
        m_database->run("ALTER TABLE credit_note RENAME TO elsewhere");
        QVERIFY(m_inventory->quantitiesOnHand(firstDay).isEmpty());
        QCOMPARE(m_inventory->errors().keys(), QStringList{"quantitiesOnHand"});
        m_inventory->clearErrors();
    }

    void adjustmentsOfAnItemAreListed()
    {
        happen(idOf("ns"), {Event::Count, 1, 10});
        happen(idOf("ns"), {Event::Count, 0, 20});
        happen(idOf("aym"), {Event::Count, 0, 30});
        DataMapperStockTake* takes = PosMapperRegistry::instance()->stockTakeMapper();
        const auto quantities = [takes](const QString& code) {
            QList<int> result;
            for (const EntityStockTake* take : castAll<EntityStockTake>(takes->findAll(code)))
                result.append(take->getQty());
            return result;
        };
        QCOMPARE(quantities("NS"), (QList<int>{20, 10}));
        QCOMPARE(quantities(QString()).size(), 3);
        const auto* take = static_cast<EntityStockTake*>(takes->findAll("aym").first());
        QCOMPARE(take->getItem()->getNama(), QString("Fried Chicken"));
        QCOMPARE(take->getItem()->getSatuan()->getKode(), QString("kg"));
        QCOMPARE(take->getStockTakeDate(), firstDay);
        QCOMPARE(take->getSourceAcctCode(), QString("5000"));
    }

    void theJournalIsReadByPeriodAndItem_data()
    {
        addColumns<QDate, QDate, QString, QStringList>("start", "end", "item", "numbers");

        addRow("all", QDate(), QDate(), "", QStringList{"a1", "r1", "r2", "r3", "a2"});
        addRow("one item", QDate(), QDate(), "ns", QStringList{"r1", "r2", "r3"});
        addRow("from a day", firstDay.addDays(1), QDate(), "ns", QStringList{"r2", "r3"});
        addRow("up to a day", QDate(), firstDay.addDays(1), "", QStringList{"a1", "r1", "r2", "r3"});
        addRow("a day of one item", firstDay, firstDay, "aym", QStringList{"a1"});
    }

    void theJournalIsReadByPeriodAndItem()
    {
        DataMapperItemHistory* journal = PosMapperRegistry::instance()->itemHistoryMapper();
        const auto write = [&](const QString& number, const QString& item, int day, int type) {
            EntityItemHistory line;
            EntityItem moved;
            moved.setId(idOf(item));
            line.setItem(&moved);
            line.setDate(firstDay.addDays(day));
            line.setQtyIn(3);
            line.setUnitPrice(new Money(&line, 1500, "Rp"));
            line.setTransType(type);
            line.setIdTrans(7);
            line.setNo(number);
            QVERIFY2(journal->insert(&line), qPrintable(journal->takeError()));
        };
        write("a2", "aym", 2, EntityItemHistory::CREDIT_NOTE);
        write("a1", "aym", 0, EntityItemHistory::PURCHASE);
        write("r1", "ns", 0, EntityItemHistory::ADJUSMENT);
        write("r2", "ns", 1, EntityItemHistory::CREDIT_NOTE + 5);
        write("r3", "ns", 1, EntityItemHistory::CREDIT_NOTE + 6);

        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QString, item);
        QStringList numbers;
        for (const EntityItemHistory* line : journal->findAll({start, end, item.isEmpty() ? KorNoValue : idOf(item)}))
            numbers.append(line->getNo());
        QVERIFY2(!journal->hasError(), qPrintable(journal->takeError()));
        QTEST(numbers, "numbers");

        const EntityItemHistory* found = journal->findByTrans(EntityItemHistory::ADJUSMENT, 7);
        QCOMPARE(found->getNo(), QString("r1"));
        QCOMPARE(found->getUnitPrice()->rawAmount(), 1500);
        QCOMPARE(found->getItem()->getJenis()->getKode(), QString("mkn"));
        QVERIFY(!journal->findByTrans(EntityItemHistory::ADJUSMENT, 8));
    }

    void aLineOfADocumentHasOneRowInTheJournal()
    {
        DataMapperItemHistory* journal = PosMapperRegistry::instance()->itemHistoryMapper();
        EntityItem rice;
        rice.setId(idOf("ns"));
        Money price(nullptr, 1500, "Rp");
        const int line = 7;
        ItemMovement movement{EntityItemHistory::PURCHASE, line, &rice, 20, 0, &price, firstDay, "PU-1"};
        // The same line of another kind of document is somebody else's.
        QVERIFY(journal->addAll({{EntityItemHistory::CREDIT_NOTE, line, &rice, 0, 3, nullptr, firstDay, "CN-1"}}));
        const auto rows = [this] {
            return m_database
                ->value("SELECT string_agg(concat_ws(' ', tran_type, qty_in, qty_out, qty_remain, unit_price_amount, "
                        "trans_date, no, version), ', ' ORDER BY tran_type) FROM item_history")
                .toString();
        };
        const QString note = "4 0 3 0 0 2026-01-28 CN-1 1";

        QVERIFY2(journal->write(movement), qPrintable(journal->takeError()));
        QCOMPARE(rows(), "1 20 0 0 1500 2026-01-28 PU-1 1, " + note);
        movement.quantityIn = 24;
        movement.date = firstDay.addDays(1);
        QVERIFY2(journal->write(movement), qPrintable(journal->takeError()));
        QCOMPARE(rows(), "1 24 0 0 1500 2026-01-29 PU-1 2, " + note);
        QVERIFY2(journal->removeLine(EntityItemHistory::PURCHASE, line), qPrintable(journal->takeError()));
        QVERIFY2(journal->removeLine(EntityItemHistory::PURCHASE, line), qPrintable(journal->takeError()));
        QCOMPARE(rows(), note);

        m_database->run("ALTER TABLE item_history RENAME TO elsewhere");
        QVERIFY(!journal->write(movement));
        QVERIFY(journal->takeError().contains("item_history"));
        QVERIFY(!journal->removeLine(EntityItemHistory::CREDIT_NOTE, line));
        QVERIFY(journal->takeError().contains("item_history"));
    }

    void anAdjustmentStandsInTheJournalUntilItIsRemoved()
    {
        m_database->run("SET session_replication_role = origin");
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
            return m_database->value("SELECT string_agg(qty_in || '/' || qty_out, ' ' ORDER BY id) FROM item_history")
                .toString();
        };
        QVERIFY(adjust(5));
        const auto loss = adjust(-3);
        QVERIFY(loss);
        QCOMPARE(journal(), QString("5/0 0/3"));
        QCOMPARE(m_inventory->getQuantityOnHand(rice, firstDay), 7);
        QVERIFY(m_inventory->stockTakeRemove(loss.get()));
        QCOMPARE(journal(), QString("5/0"));
        QCOMPARE(m_inventory->getQuantityOnHand(rice, firstDay), 15);

        // What does not reach the table is told under the operation's name; an adjustment without its row stays.
        QVERIFY(!m_inventory->stockTakeRemove(loss.get()));
        QVERIFY(!adjust(1, "nobody"));
        QCOMPARE(m_inventory->errors().keys(), (QStringList{"addInventoryAdjustment", "stockTakeRemove"}));
        m_inventory->clearErrors();
        m_database->run("ALTER TABLE item_history RENAME TO elsewhere");
        QVERIFY(!adjust(1));
        QCOMPARE(m_inventory->errors().keys(), QStringList{"addInventoryAdjustment"});
        m_inventory->clearErrors();
        QCOMPARE(m_database->value("SELECT count(*) FROM stock_take").toInt(), 2);
        m_database->run("ALTER TABLE acquisition RENAME TO away");
        (void)m_inventory->getQuantityOnHand(rice, firstDay);
        QVERIFY(m_inventory->takeErrors().contains("acquisition"));
    }

    void anItemHasOneBeginningBalance()
    {
        m_database->run("SET session_replication_role = origin");
        auto* balances = service<BusinessStokAwal>("Beginning Balance");
        EntityStokAwal balance;
        balance.setItem(service<BusinessItem>("Item")->findByCode("ns"));
        balance.setHarga(new Money(&balance, 3, "Rp"));
        balance.setJumlah(12);
        // Two workstations that both found none: the slower one is told.
        QVERIFY(!balances->insert(&balance));
        QCOMPARE(balances->takeErrors(), QString("This item has a beginning balance already, please edit it\r\n"));
        QVERIFY(balances->enter(&balance));
        QCOMPARE(m_inventory->getQuantityOnHand(balance.getItem(), firstDay), 12);
        m_database->run("DELETE FROM stok_awal");
        QVERIFY(balances->enter(&balance));
        QCOMPARE(m_database->value("SELECT string_agg(jumlah || ' ' || harga_amount, ',') FROM stok_awal").toString(),
                 QString("12 3"));
    }

    void clearingTheTransactionsKeepsTheItems()
    {
        happen(idOf("ns"), {Event::Opening, 0, 10});
        happen(idOf("ns"), {Event::Count, 1, 10});
        EntityItem rice;
        rice.setId(idOf("ns"));
        QVERIFY(PosMapperRegistry::instance()->itemHistoryMapper()->addAll(
            {{1, 1, &rice, 2, 0, nullptr, firstDay, "PU-1"}}));
        QVERIFY(m_inventory->clearTransactions());
        QCOMPARE(m_database->value("SELECT (SELECT count(*) FROM stock_take) + (SELECT count(*) FROM item_history) + "
                                   "(SELECT sum(jumlah) FROM stok_awal)"),
                 QVariant(0));
        QCOMPARE(m_inventory->quantitiesOnHand(firstDay).size(), 4);
    }

    void aMonthsCardCostsTheSameAfterFiveYears()
    {
        DataMapperItemHistory* journal = PosMapperRegistry::instance()->itemHistoryMapper();
        const QString month = " where trans_date >= current_date - 30 and trans_date <= current_date and item_id = 1 "
                              "order by trans_date asc, item_history.id asc";
        QMap<int, int> pages;
        for (const int years : {1, 5}) {
            m_database.reset();
            m_database = std::make_unique<TestDatabase>();
            insertShop(*m_database);
            insertManyMovements(*m_database, 300 * years, years);
            // The pages that it looks at, wherever they lie; a clock would tell of the neighbours.
            const QString plan =
                m_database->value("EXPLAIN (ANALYZE, BUFFERS, FORMAT JSON) " + journal->selectStatement() + month)
                    .toString();
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
    void happen(int itemId, const Event& event)
    {
        const QString date = '\'' + firstDay.addDays(event.day).toString(Qt::ISODate) + '\'';
        const QString item = QString::number(itemId);
        const QString quantity = QString::number(event.quantity);
        const auto document = [&](const QString& master, const QString& dateColumn, const QString& line,
                                  const QString& key, const QString& quantityColumn, const QString& status) {
            const QString id = QString::number(add(master, {{dateColumn, date}, {"status", status}}));
            // The same item may stand on two lines of a document.
            for (const int part : {event.quantity / 3, event.quantity - event.quantity / 3})
                add(line, {{key, id}, {"item_id", item}, {quantityColumn, QString::number(part)}});
        };
        const auto creditNote = [&](const QString& status) {
            document("credit_note", "credit_note_date", "credit_note_detail", "credit_note_id", "qty_returned", status);
        };
        switch (event.kind) {
        case Event::Opening:
            m_database->run("UPDATE stok_awal SET jumlah = " + quantity + " WHERE item_id = " + item);
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

    /** Adds a row with the given columns; the other required ones are filled with nothing in particular. */
    int add(const QString& table, QMap<QString, QString> values)
    {
        const QString required =
            m_database
                ->value("SELECT string_agg(column_name || ' ' || data_type, ',') FROM information_schema.columns WHERE "
                        "table_name = '" +
                        table + "' AND is_nullable = 'NO' AND column_default IS NULL")
                .toString();
        for (const QString& column : required.split(',')) {
            const QString type = column.section(' ', 1);
            const QString filler = type == "date" ? "'2026-01-01'" : type == "boolean" ? "false" : "'0'";
            if (!values.contains(column.section(' ', 0, 0)))
                values.insert(column.section(' ', 0, 0), filler);
        }
        return m_database
            ->value("INSERT INTO " + table + " (" + QStringList(values.keys()).join(", ") + ") VALUES (" +
                    QStringList(values.values()).join(", ") + ") RETURNING id")
            .toInt();
    }

    [[nodiscard]] int idOf(const QString& code) { return service<BusinessItem>("Item")->findByCode(code)->getId(); }

    std::unique_ptr<TestDatabase> m_database;
    BusinessInventory* m_inventory = nullptr;
};

QTEST_MAIN(TestStock)
#include "tst_stock.moc"
