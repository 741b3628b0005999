#include "app/context/EntityPool.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/cash/ledger/EntityCashFlow.h"
#include "reports/ReadReport.h"
#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/EntityAllKomisiAgen.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/receivable/EntityPiutangDetail.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QRandomGenerator>

namespace
{
const QDate firstDay(2026, 3, 3);
const QDate lastDay(2026, 3, 28);

/** Sums by key, one line of text each, so that differences are readable. */
class Sums
{
public:
    void add(const QString& key, const QList<qint64>& values)
    {
        QList<qint64>& sums = m_sums[key];
        for (int i = 0; i < values.size(); ++i) {
            if (i < sums.size())
                sums[i] += values.at(i);
            else
                sums.append(values.at(i));
        }
    }
    [[nodiscard]] QStringList lines() const
    {
        QStringList lines;
        for (auto sum = m_sums.cbegin(); sum != m_sums.cend(); ++sum) {
            QString line = sum.key();
            bool isNothing = true;
            for (const qint64 value : *sum) {
                line += QString(" %1").arg(value);
                isNothing = isNothing && value == 0;
            }
            if (!isNothing)
                lines.append(line);
        }
        return lines;
    }

private:
    QMap<QString, QList<qint64>> m_sums;
};

QStringList linesOf(const ReadReport& read, const QString& key, const QStringList& fields)
{
    Sums sums;
    for (int row = 0; row < read.table.rowCount(); ++row) {
        QList<qint64> values;
        for (const QString& field : fields)
            values.append(read.value(row, field).toLongLong());
        sums.add(read.value(row, key).toString(), values);
    }
    return sums.lines();
}
using KeyOfSale = std::function<QString(const EntityPenjualanInfo&)>;
} // namespace

Q_DECLARE_METATYPE(KeyOfSale)

/** The sales and cash reports compared with the program's own services. */
class TestReportSales : public DatabaseTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepDatabase();
        insertShop(*m_database);
        m_sales = service<BusinessPenjualan>("Sales");
        insert("jenis_item", "id=2, kode='DRINK', nama='Drink'");
        insert("agent", "id=2, kode='A2', nama='Hotel', commision_perc=7.5");
        insert("member", "id=2, kode='M2', nama='Dora'");
        insert("employee", "id=2, kode='E2', nama='Gus'");
        insert("bank", "id=2, kode='2-100', nama='Bank', active=true");
        insertItem(*m_database, 2, "TEA", "Tea", 2);
        insertSeller(*m_database, 901, "ann");
        insertSeller(*m_database, 902, "ben");
        insertTrade();
        insertMovements();
    }

    void sumsByDayAndMonthAreThoseOfTheDashboard_data()
    {
        const auto row = addColumns<bool, int>("monthly", "user");
        row("days", false, BusinessPenjualan::AllUsers);
        row("days of a cashier", false, 901);
        row("months of a cashier", true, 902);
    }
    void sumsByDayAndMonthAreThoseOfTheDashboard()
    {
        QFETCH(bool, monthly);
        QFETCH(int, user);
        const EntityPoolScope scope(m_pool);
        Sums sums;
        for (const EntitySalesSummaryInfo* sum : monthly ? m_sales->getMonthlySales(firstDay, lastDay, user)
                                                         : m_sales->getDailySales(firstDay, lastDay, user))
            sums.add(sum->getDate().toString(Qt::ISODate),
                     {sum->getSalesCount(), sum->getTotal(), sum->getCash(), sum->getCredit()});
        const QVariant cashier =
            user == BusinessPenjualan::AllUsers ? QVariant(QVariant::String) : QVariant(QString::number(user));
        QVERIFY(!sums.lines().isEmpty());
        QCOMPARE(linesOf(read(monthly ? "sales-by-month" : "sales-by-day", {{"cashier", cashier}}), "day",
                         {"sales", "total", "cash", "credit"}),
                 sums.lines());
    }

    void itemsSoldAreThoseOfTheDashboard()
    {
        const EntityPoolScope scope(m_pool);
        for (const auto& type :
             {qMakePair(QString(), QVariant(QVariant::String)), qMakePair(QString("DRINK"), QVariant("2"))}) {
            Sums sums;
            for (const EntitySoldItem* item : m_sales->getSoldItems(firstDay, lastDay, "desc", "total_qty", type.first))
                sums.add(item->getKode(), {item->getTotalQty(), item->getTotalPrice()});
            QVERIFY(!sums.lines().isEmpty());
            for (const char* id : {"sales-by-item", "sales-margin"})
                QCOMPARE(linesOf(read(id, {{"itemtype", type.second}}), "code", {"qty", "total"}), sums.lines());
        }
    }

    void salesByPartnerAreThoseOfTheSalesList_data()
    {
        const auto row = addColumns<QString, KeyOfSale>("field", "key");
        row("sales-by-member", "code",
            [](const auto& sale) { return sale.getMember() ? sale.getMember()->getKode() : ""; });
        row("sales-by-waitress", "code",
            [](const auto& sale) { return sale.waitress() ? sale.waitress()->getKode() : ""; });
        row("sales-by-cashier", "name", [](const auto& sale) { return sale.getUser()->getUserName(); });
        row("sales-by-type", "type", [](const auto& sale) {
            return QMap<QString, QString>{
                {"Dine", "Dine in"}, {"Fast Food", "Fast food"}, {"Take Away Food", "Take away"}}
                .value(sale.typeName());
        });
        row("sales-invoices", "no", [](const auto& sale) { return sale.getInvoice()->getInvoiceNo(); });
    }
    void salesByPartnerAreThoseOfTheSalesList()
    {
        QFETCH(QString, field);
        QFETCH(KeyOfSale, key);
        const EntityPoolScope scope(m_pool);
        SalesFilter all;
        all.from = firstDay;
        all.to = lastDay;
        Sums sums;
        for (const EntityPenjualanInfo* sale : m_sales->searchPenjualan(all))
            sums.add(key(*sale), {sale->getGrandTotal()->rawAmount(), sale->getOtherPayment()->rawAmount()});
        QVERIFY(!sums.lines().isEmpty());
        QCOMPARE(linesOf(read(QTest::currentDataTag()), field, {"total", "credit"}), sums.lines());
    }

    void whatMembersOweIsWhatTheirPaymentFormOffers()
    {
        const EntityPoolScope scope(m_pool);
        for (const int member : {1, 2}) {
            qint64 due = 0;
            int invoices = 0;
            for (const EntityPiutangDetail* line : m_sales->getUnpaidInvoicesForMember(member)) {
                due += line->getAmountDue()->rawAmount();
                ++invoices;
            }
            const QVariantMap answers{{"member", QString::number(member)}, {"day", QDate::currentDate()}};
            const ReadReport open = read("sales-open", answers);
            QVERIFY(invoices > 0);
            QCOMPARE(open.table.rowCount(), invoices);
            QCOMPARE(open.table.total(open.table.report().columnOf("due")).toLongLong(), due);
            const ReadReport byAge = read("sales-receivables", answers);
            QCOMPARE(byAge.value(0, "due").toLongLong(), due);
            qint64 ages = 0;
            for (const char* age : {"current", "month1", "month2", "month3", "older"})
                ages += byAge.value(0, age).toLongLong();
            QCOMPARE(ages, due);
        }
    }

    void commissionsAreThoseOfTheAgentsPage()
    {
        const EntityPoolScope scope(m_pool);
        Sums sums;
        for (const EntityAllKomisiAgen* row :
             m_sales->searchInvoiceForAgentCommision({firstDay, lastDay, KorNoValue, 0}))
            sums.add(row->getAgent()->getNama() +
                         (row->getStatus() == EntityAllKomisiAgen::FULL_PAID ? " Paid" : " Open"),
                     {row->getInvoice()->getGrandTotal()->rawAmount(), row->getCommision()->rawAmount()});
        Sums reported;
        const ReadReport earned = read("commissions-earned");
        for (int row = 0; row < earned.table.rowCount(); ++row)
            reported.add(earned.value(row, "agent").toString() +
                             (earned.value(row, "status").toString() == "Paid" ? " Paid" : " Open"),
                         {earned.value(row, "total").toLongLong(), earned.value(row, "commission").toLongLong()});
        QCOMPARE(sums.lines().size(), 4);
        QCOMPARE(reported.lines(), sums.lines());
    }

    void accountsAreThoseOfTheGeneralJournal()
    {
        const EntityPoolScope scope(m_pool);
        auto* journal = service<BusinessCashFlow>("Journal Transaction");
        const auto moved = [journal](const QDate& from, const QDate& to, const QString& code) {
            QList<qint64> sums{0, 0, 0};
            for (const EntityCashFlow* row : journal->search({from, to, CashFlowFilter::AllRows, code})) {
                ++sums[0];
                sums[1] += row->getDebet()->rawAmount();
                sums[2] += row->getCredit()->rawAmount();
            }
            return sums;
        };
        Sums expected;
        for (const QString code : {"1-100", "2-100"}) {
            const QList<qint64> before = moved({2000, 1, 1}, firstDay.addDays(-1), code);
            const QList<qint64> inPeriod = moved(firstDay, lastDay, code);
            const qint64 opening = before.at(1) - before.at(2);
            const qint64 closing = opening + inPeriod.at(1) - inPeriod.at(2);
            QVERIFY(inPeriod.at(0) > 10 && opening != 0);
            expected.add(code, QList<qint64>{opening} + inPeriod + QList<qint64>{closing});
            const ReadReport ledger = read("cash-ledger", {{"account", code}});
            QCOMPARE(ledger.table.rowCount(), inPeriod.at(0) + 2);
            QCOMPARE(ledger.value(0, "balance").toLongLong(), opening);
            QCOMPARE(ledger.value(ledger.table.rowCount() - 1, "balance").toLongLong(), closing);
            const ReadReport byDay = read("cash-by-day", {{"account", code}});
            QCOMPARE(byDay.value(byDay.table.rowCount() - 1, "balance").toLongLong(), closing);
        }
        QCOMPARE(linesOf(read("cash-balances"), "account", {"opening", "movements", "debit", "credit", "closing"}),
                 expected.lines());
        const QList<qint64> all = moved(firstDay, lastDay, {});
        for (const char* id : {"cash-by-kind", "cash-by-day"}) {
            const ReadReport read = this->read(id);
            QCOMPARE(read.table.total(read.table.report().columnOf("debit")).toLongLong(), all.at(1));
            QCOMPARE(read.table.total(read.table.report().columnOf("credit")).toLongLong(), all.at(2));
        }
    }

    void theCashOfACloseIsThatOfTheDayAndCashier()
    {
        const EntityPoolScope scope(m_pool);
        int closes = 0;
        for (QDate day = firstDay; day <= lastDay; day = day.addDays(1)) {
            for (const int user : {901, 902}) {
                const QList<EntitySalesSummaryInfo*> sums = m_sales->getDailySales(day, day, user);
                Sums expected;
                for (const EntitySalesSummaryInfo* sum : sums)
                    expected.add({}, {sum->getSalesCount(), sum->getTotal(), sum->getCash(), sum->getCredit()});
                const ReadReport close = read("cash-day-close", {{"day", day}, {"cashier", QString::number(user)}});
                Sums reported;
                for (int row = 0; row < close.table.rowCount(); ++row) {
                    const auto value = [&close, row](const char* field) {
                        return close.value(row, field).toLongLong();
                    };
                    reported.add({}, {value("sales"), value("total"), value("cash"), value("credit")});
                    QCOMPARE(value("expected"),
                             value("cash") + value("membercash") + value("received") - value("spent"));
                }
                QCOMPARE(reported.lines(), expected.lines());
                closes += reported.lines().size();
            }
        }
        QVERIFY(closes > 20);
    }

private:
    void insertTrade()
    {
        const QStringList types{"TRD", "TRF", "TRP"};
        for (int i = 0; i < 150; ++i) {
            SaleRow sale;
            sale.no = QString("S%1").arg(i);
            sale.type = types.at(m_random.bounded(3));
            sale.date = QDate(2026, 3, 1).addDays(m_random.bounded(31));
            sale.total = m_random.bounded(40) * 25;
            // Too little, the exact sum, or too much; sometimes another payment as well.
            sale.paid = m_random.bounded(3) == 0 ? 0 : sale.total + 50 * (m_random.bounded(5) - 2);
            sale.paid = std::max(sale.paid, 0);
            sale.other = m_random.bounded(4) == 0 ? std::max(sale.total - sale.paid, 0) : 0;
            sale.status = sale.paid + sale.other == 0 ? 2 : sale.paid + sale.other >= sale.total ? 1 : 3;
            sale.member = m_random.bounded(3);
            sale.employee = sale.type == "TRP" ? 0 : m_random.bounded(3);
            sale.agent = sale.type == "TRP" ? 0 : m_random.bounded(3);
            sale.user = 901 + m_random.bounded(2);
            const int invoice = insertSale(*m_database, sale);
            insert("invoice_detail", QString("invoice_id=%1, item_id=2, qty=%2, total_amount=%3")
                                         .arg(invoice)
                                         .arg(m_random.bounded(5))
                                         .arg(m_random.bounded(500)));
            if (sale.agent > 0 && m_random.bounded(2) == 0)
                insert("komisi_agen_detail",
                       QString("invoice_id=%1, komisi_agen_id=(SELECT min(id) FROM komisi_agen), commision_amount=5")
                           .arg(invoice));
            if (i == 0)
                insertLedgerRow(*m_database, {LedgerRow::Commission, "KAG-1", {2026, 3, 15}, 70, 1, "", 2, "", 901});
        }
        // The order of some tables was given to another member since.
        run("UPDATE makan_ditempat SET member_id = 3 - member_id WHERE id % 3 = 0");
    }

    void insertMovements()
    {
        for (int i = 0; i < 150; ++i) {
            LedgerRow row;
            row.kind = static_cast<LedgerRow::Kind>(m_random.bounded(LedgerRow::KindCount));
            if (row.kind == LedgerRow::Sale || row.kind == LedgerRow::Commission)
                continue;
            row.no = QString("D%1").arg(i);
            row.date = QDate(2026, 2, 15).addDays(m_random.bounded(50));
            row.amount = m_random.bounded(1000);
            // Some without an account, with a deleted one, or without a user: these are in no journal.
            row.account = m_random.bounded(3);
            row.toAccount = row.account == 0 ? 0 : 3 - row.account;
            row.code = QStringList{"1-100", "2-100", "GONE"}.at(m_random.bounded(3));
            row.user = m_random.bounded(4) == 0 ? 0 : 901;
            insertLedgerRow(*m_database, row);
        }
    }

    [[nodiscard]] ReadReport read(const QString& id, const QVariantMap& answers = {}) const
    {
        return readReport(*m_database, id, firstDay, lastDay, answers);
    }

    BusinessPenjualan* m_sales = nullptr;
    EntityPool m_pool;
    QRandomGenerator m_random{20260301};
};

QTEST_GUILESS_MAIN(TestReportSales)
#include "tst_report_sales.moc"
