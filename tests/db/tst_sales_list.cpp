#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorDataMapper.h"
#include "support/Rows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QRandomGenerator>
#include <QTest>

Q_DECLARE_METATYPE(SalesFilter)

namespace
{
const QDate march(2026, 3, 1);

SalesFilter inMarch()
{
    SalesFilter filter;
    filter.from = march;
    filter.to = QDate(2026, 3, 31);
    return filter;
}
/** What a day or a month took in: sales, total, cash that stayed in the drawer, anything else. */
struct Sums
{
    qint64 count = 0;
    qint64 total = 0;
    qint64 cash = 0;
    qint64 credit = 0;

    Sums& operator+=(const EntityPenjualanInfo& row)
    {
        const auto amount = [](const Money* money) { return qint64(money->getAmount()); };
        const qint64 paid = amount(row.getAmountPaid());
        ++count;
        total += amount(row.getGrandTotal());
        cash += paid - std::max(paid - amount(row.getGrandTotal()), qint64(0));
        credit += amount(row.getOtherPayment());
        return *this;
    }
};

QString text(const QMap<QDate, Sums>& sums)
{
    QStringList lines;
    for (auto sum = sums.cbegin(); sum != sums.cend(); ++sum)
        lines.append(QString("%1: %2 %3 %4 %5")
                         .arg(sum.key().toString(Qt::ISODate))
                         .arg(sum->count)
                         .arg(sum->total)
                         .arg(sum->cash)
                         .arg(sum->credit));
    return lines.join(", ");
}

QString text(const QList<EntitySalesSummaryInfo*>& figures)
{
    QMap<QDate, Sums> sums;
    for (const EntitySalesSummaryInfo* figure : figures)
        sums.insert(figure->getDate(),
                    {figure->getSalesCount(), figure->getTotal(), figure->getCash(), figure->getCredit()});
    return text(sums);
}
} // namespace

/** Finding the sales of all kinds in one list, and deleting them from it. */
class TestSalesList : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        insertShop(*m_database);
        loginAsAdmin();
        m_sales = service<BusinessPenjualan>("Sales");
        insertSeller(*m_database, 1, "ann");
        insertSeller(*m_database, 2, "ben");
        m_database->run("INSERT INTO meja (id, kode, nama, version) VALUES (2, 'T2', 'Door', 1)");
    }

    void cleanup() { m_database.reset(); }
    // --- the list ----------------------------------------------------------------------------------------------------

    void theListFindsWhatTheFilterAsksFor_data()
    {
        addColumns<SalesFilter, QString>("filter", "found");

        const auto row = [](const char* name, const QString& found, auto... narrow) {
            SalesFilter filter = inMarch();
            (narrow(filter), ...);
            addRow(name, filter, found);
        };
        const auto status = [](int code) { return [code](SalesFilter& filter) { filter.status = code; }; };
        const auto no = [](const char* text) { return [text](SalesFilter& filter) { filter.invoiceNo = text; }; };
        const auto guest = [](const char* text) { return [text](SalesFilter& filter) { filter.guest = text; }; };
        const auto pay = [](int payment) { return [payment](SalesFilter& filter) { filter.payment = payment; }; };
        const auto table = [](SalesFilter& filter) { filter.tableId = 1; };
        const auto member = [](SalesFilter& filter) { filter.memberId = 1; };
        const auto waitress = [](SalesFilter& filter) { filter.employeeId = 1; };
        const auto agent = [](SalesFilter& filter) { filter.agentId = 1; };

        row("everything, the latest first", "C3 D4 H2 F1 D3 D2 D1");
        row("one day", "H2 F1 D3 D2 D1", [](SalesFilter& filter) { filter.to = march; });
        row("both limits count", "C3 D4", [](SalesFilter& filter) { filter.from = QDate(2026, 3, 2); });
        row("fully paid", "H2 F1 D1", status(1));
        row("unpaid", "C3 D3", status(2));
        row("partially paid", "D4 D2", status(3));
        row("all that are open", "C3 D4 D3 D2", status(SalesFilter::OpenInvoices));
        row("a part of the number, in any case", "D4 D3 D2 D1", no("d"));
        row("a table's sales are at the table", "D4 D1", table);
        row("a member's sales of all kinds", "C3 F1 D1", member);
        row("a waitress carries nothing home", "F1 D1", waitress);
        row("an agent brings nobody who carries food home", "F1 D2", agent);
        row("paid with anything but cash", "D4 H2", pay(SalesFilter::OtherPayment));
        row("cash is in every sale", "C3 D4 H2 F1 D3 D2 D1", pay(SalesFilter::CashPayment));
        row("a part of the guest's name, in any case", "F1 D2", guest("MARY"));
        row("a text that only looks like SQL", "", guest("' or 1=1 --"));
        row("a member at a table", "D1", table, member);
        row("a waitress' open sales", "", waitress, status(2));
        row("agent, guest and number", "D2", agent, guest("ary"), no("D"));
        row("everything at once", "D1", status(1), no("d1"), table, member, waitress, pay(SalesFilter::CashPayment),
            guest("jo"));
    }

    void theListFindsWhatTheFilterAsksFor()
    {
        QFETCH(SalesFilter, filter);
        QFETCH(QString, found);

        const auto lay = [this](SaleRow sale, auto change) {
            change(sale);
            insertSale(*m_database, sale);
        };
        lay({"D1"}, [](SaleRow& sale) { sale.guest = "Joe", sale.member = sale.employee = 1; });
        lay({"D2", "TRD", 200, 50, 0, 3}, [](SaleRow& sale) { sale.guest = "Mary", sale.table = 2, sale.agent = 1; });
        lay({"D3", "TRD", 300, 0, 0, 2}, [](SaleRow& sale) { sale.table = 2, sale.user = 2; });
        lay({"F1", "TRF"}, [](SaleRow& sale) { sale.guest = "mary", sale.member = sale.employee = sale.agent = 1; });
        lay({"H2", "TRP", 100, 0, 100}, [](SaleRow&) {});
        lay({"D4", "TRD", 100, 0, 50, 3}, [](SaleRow& sale) { sale.date = QDate(2026, 3, 31); });
        lay({"C3", "TRP", 100, 0, 0, 2}, [](SaleRow& sale) { sale.date = QDate(2026, 3, 31), sale.member = 1; });
        lay({"OLD"}, [](SaleRow& sale) { sale.date = QDate(2026, 2, 28); });

        const StatementCount statements;
        QCOMPARE(numbers(filter).join(' '), found);
        QCOMPARE(statements.count(), 1);
    }

    void theFiguresAreTheSumsOfTheList_data()
    {
        addColumns<quint32>("seed");
        for (quint32 seed : {1U, 7U, 42U, 2026U, 90125U})
            addRow(qPrintable(QString("seed %1").arg(seed)), seed);
    }

    void theFiguresAreTheSumsOfTheList()
    {
        QFETCH(quint32, seed);
        QRandomGenerator chance(seed);
        m_database->run("CREATE TEMP TABLE tea AS SELECT * FROM item");
        m_database->run("UPDATE tea SET id = 2, kode = 'TEA'");
        m_database->run("INSERT INTO item SELECT * FROM tea");
        sellAtRandom(chance);

        for (int round = 0; round < 4; ++round) {
            SalesFilter filter;
            filter.from = march.addDays(chance.bounded(60));
            filter.to = filter.from.addDays(chance.bounded(40));
            const int user = round % 2 == 0 ? int(BusinessPenjualan::AllUsers) : 1 + chance.bounded(2);
            QMap<QDate, Sums> days;
            QMap<QDate, Sums> months;
            QList<int> listed;
            for (const EntityPenjualanInfo* row : m_sales->searchPenjualan(filter)) {
                listed.append(row->getId());
                if (user != BusinessPenjualan::AllUsers && row->getUser()->getId() != user)
                    continue;
                const QDate date = row->getInvoice()->getInvoiceDate();
                days[date] += *row;
                months[QDate(date.year(), date.month(), 1)] += *row;
            }
            QVERIFY2(!m_sales->hasError(), qPrintable(m_sales->takeErrors()));
            QCOMPARE(text(m_sales->getDailySales(filter.from, filter.to, user)), text(days));
            QCOMPARE(text(m_sales->getMonthlySales(filter.from, filter.to, user)), text(months));

            QStringList items;
            for (const EntitySoldItem* item : m_sales->getSoldItems(filter.from, filter.to, "asc", "kode", QString()))
                items.append(
                    QString("%1 %2 %3").arg(item->getKode()).arg(item->getTotalQty()).arg(item->getTotalPrice()));
            QCOMPARE(items.join(','), m_database
                                          ->value("SELECT string_agg(sold, ',' ORDER BY sold) FROM (SELECT kode || "
                                                  "' ' || sum(qty) || ' ' || sum(total_amount) AS sold FROM "
                                                  "invoice_detail JOIN item ON item.id = item_id WHERE invoice_id "
                                                  "= ANY('" +
                                                  KorDataMapper::idList(listed) + "') GROUP BY kode) lines")
                                          .toString());
        }
    }

    void anAgentWaitsForTheCommissionOfSalesThatNobodyPaidHimFor()
    {
        m_database->run("INSERT INTO agent (id, kode, nama, alamat, telp, email, commision_perc, version) VALUES "
                        "(2, 'A2', 'Other', '', '', '', 5, 1)");
        for (const char* type : {"TRD", "TRF", "TRP"}) {
            for (int agent : {1, 2}) {
                SaleRow sale{QString(type) + QString::number(agent), type};
                sale.agent = agent;
                insertSale(*m_database, sale);
            }
        }
        const auto pending = [this] {
            QStringList rows;
            for (const EntityPenjualanInfo* row : m_sales->searchPendingInvoiceForAgentCommision(1))
                rows.append(row->getInvoice()->getInvoiceNo() + " of agent " + QString::number(row->agentId()));
            return rows.join(", ") + m_sales->takeErrors();
        };
        QCOMPARE(pending(), QString("TRF1 of agent 1, TRD1 of agent 1"));

        m_database->run(
            "INSERT INTO komisi_agen (id, no, agent_id, payment_date, grandtotal_currency, grandtotal_amount, "
            "amount_paid_currency, amount_paid_amount, net_due_currency, net_due_amount, version) VALUES "
            "(1, 'KAG-1', 1, '2026-03-02', 'Rp', 10, 'Rp', 10, 'Rp', 0, 1)");
        m_database->run(
            "INSERT INTO komisi_agen_detail (komisi_agen_id, invoice_id, commision_perc, commision_currency, "
            "commision_amount, version) SELECT 1, id, 10, 'Rp', 10, 1 FROM invoice WHERE no = 'TRF1'");
        QCOMPARE(pending(), QString("TRD1 of agent 1"));
        // A sale whose commission is paid can be deleted, and the payment's line stays.
        QVERIFY2(m_sales->deleteSales(listed("TRF1")), qPrintable(m_sales->takeErrors()));
        QCOMPARE(count("komisi_agen_detail"), 1);
    }

    // --- deleting ----------------------------------------------------------------------------------------------------

    void deletingASaleTakesItsLinkAndItsLinesAlone_data()
    {
        addColumns<QString, QString, QString>("type", "link", "order");
        addRow("at a table", "TRD", "invoice_makan_ditempat", "makan_ditempat WHERE status = 1");
        addRow("at the counter", "TRF", "invoice_fast_food", QString());
        addRow("to take away", "TRP", "invoice_bawa_pulang", "bawa_pulang WHERE status = 1");
    }

    void deletingASaleTakesItsLinkAndItsLinesAlone()
    {
        QFETCH(QString, type);
        QFETCH(QString, link);
        QFETCH(QString, order);
        insertSale(*m_database, {"GOES", type, 900, 1000});
        insertSale(*m_database, {"STAYS", type});
        m_database->run("INSERT INTO piutang (id, payment_type, member_id, payment_date, no, grandtotal_currency, "
                        "grandtotal_amount, version) VALUES (1, 1, 1, '2026-03-02', 'PIU-1', 'Rp', 10, 1)");
        m_database->run(
            "INSERT INTO piutang_detail (piutang_id, invoice_id, amount_paid_currency, amount_paid_amount, "
            "amount_due_currency, amount_due_amount, version) SELECT 1, id, 'Rp', 10, 'Rp', 0, 1 FROM invoice");

        QVERIFY2(m_sales->deleteSales(listed("GOES")), qPrintable(m_sales->takeErrors()));
        QVERIFY(!m_sales->hasError());
        QCOMPARE(numbers(inMarch()), QStringList("STAYS"));
        QCOMPARE(count(link), 1);
        QCOMPARE(count("invoice_detail"), 1);
        QCOMPARE(count("piutang_detail"), 2);
        if (!order.isEmpty())
            QCOMPARE(count(order), 2);
    }

    void deletingOneOfTwoSplitInvoicesUnlinksBothAndDeletesOne()
    {
        const int order = insertDineOrder(*m_database, {{2, 100}}, march);
        m_database->run("UPDATE makan_ditempat SET status = 4");
        for (const char* no : {"FIRST", "SECOND"}) {
            SaleRow half{no};
            half.order = order;
            insertSale(*m_database, half);
        }
        QVERIFY2(m_sales->deleteSales(listed("FIRST")), qPrintable(m_sales->takeErrors()));
        QCOMPARE(count("invoice_makan_ditempat"), 0);
        QCOMPARE(count("invoice_detail"), 1);
        QCOMPARE(numbers(inMarch()), QStringList("SECOND"));
        // The table stays taken, and its order paid.
        QCOMPARE(count("makan_ditempat WHERE status = 4 AND meja_id = 1"), 1);
        QCOMPARE(count("makan_ditempat_detail"), 1);

        // What was left without its link can still be deleted.
        QCOMPARE(m_sales->searchPenjualan(inMarch()).first()->typeName(), QString());
        QVERIFY2(m_sales->deleteSales(listed("SECOND")), qPrintable(m_sales->takeErrors()));
        QCOMPARE(count("invoice") + count("invoice_detail"), 0);
    }

    void aSaleOfAnUnknownKindStays()
    {
        insertSale(*m_database, {"ODD"});
        m_database->run("UPDATE invoice SET invoice_type = 'TRX'");
        QVERIFY(!m_sales->deleteSales(listed("ODD")));
        QCOMPARE(m_sales->errors().value("deleteSales"), QStringList("mapper not found"));
        m_sales->clearErrors();
        // Nothing is left open: the next sale is deleted for good, and others see it gone.
        insertSale(*m_database, {"EVEN"});
        QVERIFY2(m_sales->deleteSales(listed("EVEN")), qPrintable(m_sales->takeErrors()));
        QCOMPARE(count("invoice"), 1);
    }

    void aSaleThatChangedMeanwhileStaysWhole()
    {
        insertSale(*m_database, {"BUSY"});
        Invoice* seen = listed("BUSY");
        m_database->run("UPDATE invoice SET version = 2, updatedby = 2");
        QVERIFY(!m_sales->deleteSales(seen));
        QVERIFY(m_sales->takeErrors().contains("Table: invoice has been updated"));
        QCOMPARE(count("invoice") + count("invoice_detail") + count("invoice_makan_ditempat"), 3);
    }

private:
    QStringList numbers(const SalesFilter& filter)
    {
        QStringList found;
        for (const EntityPenjualanInfo* row : m_sales->searchPenjualan(filter))
            found.append(row->getInvoice()->getInvoiceNo());
        if (m_sales->hasError())
            found.append(m_sales->takeErrors());
        return found;
    }

    /** The row of the list with this number. */
    Invoice* listed(const QString& no)
    {
        SalesFilter filter = inMarch();
        filter.invoiceNo = no;
        const QList<EntityPenjualanInfo*> rows = m_sales->searchPenjualan(filter);
        return rows.isEmpty() ? nullptr : rows.first()->getInvoice();
    }

    /** Sixty sales of a spring, with further lines of two dishes. */
    void sellAtRandom(QRandomGenerator& chance)
    {
        for (int i = 0; i < 60; ++i) {
            const int total = chance.bounded(50) * 500;
            const int other = chance.bounded(4) == 0 ? chance.bounded(total + 1) : 0;
            // Nothing, a part, exactly, or a large note.
            const int paid = QList<int>{0, total / 3, total - other, total + 5000}.at(chance.bounded(4));
            SaleRow sale{QString::number(i), QStringList{"TRD", "TRF", "TRP"}.at(chance.bounded(3)), total, paid,
                         other};
            sale.date = march.addDays(chance.bounded(80));
            sale.user = 1 + chance.bounded(2);
            const int id = insertSale(*m_database, sale);
            for (int line = chance.bounded(3); line > 0; --line)
                m_database->run(
                    QString("INSERT INTO invoice_detail (invoice_id, item_id, qty, price_each_currency, "
                            "price_each_amount, discount_currency, discount_amount, total_currency, "
                            "total_amount, version) VALUES (%1, 2, %2, 'Rp', 700, 'Rp', 0, 'Rp', %2 * 700, 1)")
                        .arg(id)
                        .arg(1 + chance.bounded(9)));
        }
    }

    int count(const QString& rows) { return m_database->value("select count(*) from " + rows).toInt(); }

    std::unique_ptr<TestDatabase> m_database;
    BusinessPenjualan* m_sales = nullptr;
};

QTEST_MAIN(TestSalesList)
#include "tst_sales_list.moc"
