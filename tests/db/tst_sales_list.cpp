#include "app/persistence/FoundRows.h"
#include "kor/persistence/KorQuery.h"
#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/DataMapperAllAgentCommision.h"
#include "zavel/commission/EntityAllKomisiAgen.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"

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
} // namespace

/** Finding the sales of all kinds in one list, and deleting them from it. */
class TestSalesList : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        m_sales = service<BusinessPenjualan>("Sales");
        insertSeller(*m_database, 1, "ann");
        insertSeller(*m_database, 2, "ben");
        insert("meja", "id=2, kode='T2', nama='Door'");
    }

private slots:
    void deletingASaleTakesItsLinkAndItsLinesAlone_data()
    {
        const auto row = addColumns<QString, QString, QString>("type", "link", "order");
        row("at a table", "TRD", "invoice_makan_ditempat", "makan_ditempat WHERE status = 1");
        row("at the counter", "TRF", "invoice_fast_food", QString());
        row("to take away", "TRP", "invoice_bawa_pulang", "bawa_pulang WHERE status = 1");
    }
    void deletingASaleTakesItsLinkAndItsLinesAlone()
    {
        FETCH(QString, type, link, order);
        insertSale(*m_database, {"GOES", type, 900, 1000});
        insertSale(*m_database, {"STAYS", type});
        insert("piutang", "id=1");
        for (const char* invoice : {"1", "2"})
            insert("piutang_detail", QString("invoice_id=%1").arg(invoice));

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
        run("UPDATE makan_ditempat SET status = 4");
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

    void rowsAreThoseOfTheStatementBehindTheJoins_data()
    {
        const auto row = addColumns<QString, int, int, int, int>("told", "status", "member", "employee", "agent");
        const QString member = "(makan_ditempat.member_id = 1 or invoice_bawa_pulang.member_id = 1 or "
                               "invoice_fast_food.member_id = 1)";
        const QString employee = "(invoice_makan_ditempat.employee_id = 1 or invoice_fast_food.employee_id = 1)";
        const QString agent = "(invoice_makan_ditempat.agent_id = 2 or invoice_fast_food.agent_id = 2)";
        const int any = KorNoValue;
        row("of a member", member, 0, 1, any, any);
        row("of a waitress", employee, 0, any, 1, any);
        row("of an agent", agent, 0, any, any, 2);
        row("of all three", member + " and " + employee + " and " + agent, 0, 1, 1, 2);
        row("open", "invoice.status <> 1", int(SalesFilter::OpenInvoices), any, any, any);
        row("partly paid, of a member", "invoice.status = 3 and " + member, int(Invoice::PARTIALLY_PAID), 1, any, any);
    }
    void rowsAreThoseOfTheStatementBehindTheJoins()
    {
        FETCH(QString, told);
        QFETCH(int, status);
        QFETCH(int, member);
        QFETCH(int, employee);
        QFETCH(int, agent);
        insertMixedSales(2000);
        SalesFilter filter;
        filter.from = QDate::currentDate().addDays(-40);
        filter.to = QDate::currentDate();
        filter.status = status;
        filter.memberId = member;
        filter.employeeId = employee;
        filter.agentId = agent;
        const QString expected =
            toldRows(ZavelMapperRegistry::instance()->penjualanInfoMapper()->selectStatement() + " where " + told);
        QVERIFY(!expected.isEmpty());
        QStringList found;
        for (const EntityPenjualanInfo* sale : m_sales->searchPenjualan(filter))
            found.append(lineOf(*sale->getInvoice()));
        QCOMPARE(found.join(','), expected);
        QCOMPARE(listed(*m_sales->openSales(filter), &EntityPenjualanInfo::getInvoice), expected);
    }

    void commissionsAreThoseOfTheStatementBehindTheJoins()
    {
        insertMixedSales(2000);
        const QString select = ZavelMapperRegistry::instance()->allAgentCommisionMapper()->selectStatement();
        const QString ofOne = "(invoice_makan_ditempat.agent_id = 2 or invoice_fast_food.agent_id = 2)";
        const QString ofAny = "(invoice_makan_ditempat.agent_id is not null or invoice_fast_food.agent_id is not null)";
        for (const auto& [status, paid] :
             {std::pair(0, ""),
              {int(EntityAllKomisiAgen::UNPAID), " and komisi_agen_detail.invoice_id is null"},
              {int(EntityAllKomisiAgen::FULL_PAID), " and komisi_agen_detail.invoice_id is not null"}}) {
            for (const int agent : {KorNoValue, 2}) {
                const QString expected = toldRows(select + " where " + (agent == 2 ? ofOne : ofAny) + paid);
                QVERIFY(!expected.isEmpty());
                const QDate today = QDate::currentDate();
                const AgentSalesFilter filter{today.addDays(-40), today, agent, status};
                QCOMPARE(listed(*m_sales->openAgentSales(filter), &EntityAllKomisiAgen::getInvoice), expected);
            }
        }
        QStringList pending;
        for (const EntityPenjualanInfo* sale : m_sales->searchPendingInvoiceForAgentCommision(2))
            pending.append(lineOf(*sale->getInvoice()));
        QCOMPARE(pending.join(','),
                 toldRows(ZavelMapperRegistry::instance()->penjualanInfoMapper()->selectStatement() + " where " +
                          ofOne + " and invoice.id not in (select invoice_id from komisi_agen_detail)"));
    }

    void theSalesOfFewAreFoundWithoutReadingAll()
    {
        insertMixedSales(20000);
        run("UPDATE makan_ditempat SET member_id = 1 WHERE id <= 40; UPDATE makan_ditempat SET member_id = 2 WHERE id "
            "> "
            "40; UPDATE invoice_fast_food SET member_id = NULL; UPDATE invoice_bawa_pulang SET member_id = NULL; "
            "UPDATE "
            "invoice_makan_ditempat SET agent_id = NULL; UPDATE invoice_fast_food SET agent_id = CASE WHEN invoice_id "
            "< "
            "200 THEN 2 END");
        run("VACUUM ANALYZE");
        SalesFilter ofMember;
        ofMember.memberId = 1;
        const int before = wholeReads();
        QVERIFY(!m_sales->searchPenjualan(ofMember).isEmpty());
        QVERIFY(m_sales->openSales(ofMember)->readOn());
        QVERIFY(!m_sales->searchPendingInvoiceForAgentCommision(2).isEmpty());
        QCOMPARE(wholeReads(), before);
    }

    void aSaleOfAnUnknownKindStays()
    {
        insertSale(*m_database, {"ODD"});
        run("UPDATE invoice SET invoice_type = 'TRX'");
        QVERIFY(!m_sales->deleteSales(listed("ODD")));
        QCOMPARE(m_sales->errors().value("deleteSales"), QStringList("mapper not found"));
        m_sales->clearErrors();
        // Nothing is left open: the next sale is deleted for good, and others see it gone.
        insertSale(*m_database, {"EVEN"});
        QVERIFY2(m_sales->deleteSales(listed("EVEN")), qPrintable(m_sales->takeErrors()));
        QCOMPARE(count("invoice"), 1);
    }

private:
    /** Sales with links of all kinds, of none and of two, with members and agents here and there, many on one day. */
    void insertMixedSales(int sales)
    {
        insert("member", "id=2, kode='M2', nama='Two'");
        insert("agent", "id=2, kode='A2', nama='Pilot', commision_perc=5");
        insertManySales(*m_database, sales);
        run("UPDATE makan_ditempat SET member_id = (ARRAY[1, 2, NULL])[1 + abs(hashint8(id)) % 3]");
        for (const QString link : {"invoice_fast_food", "invoice_bawa_pulang"})
            run("UPDATE " + link + " SET member_id = (ARRAY[1, 2, NULL])[1 + abs(hashint8(id + 7)) % 3]");
        for (const QString link : {"invoice_makan_ditempat", "invoice_fast_food"})
            run("UPDATE " + link +
                " SET agent_id = (ARRAY[1, 2, NULL, NULL])[1 + abs(hashint8(id + 3)) % 4], "
                "employee_id = (ARRAY[1, NULL])[1 + abs(hashint8(id + 5)) % 2]");
        run("INSERT INTO invoice_fast_food (invoice_id, agent_id, member_id, version) SELECT invoice_id, 2, 1, 1 FROM "
            "invoice_makan_ditempat WHERE invoice_id % 50 = 1");
        run("DELETE FROM invoice_makan_ditempat WHERE invoice_id % 50 = 2");
        insert("komisi_agen", "id=1");
        run("INSERT INTO komisi_agen_detail (komisi_agen_id, invoice_id, commision_perc, commision_currency, "
            "commision_amount, version) SELECT 1, id, 10, 'Rp', 1, 1 FROM invoice WHERE abs(hashint8(id + 11)) % 2 = "
            "0");
        run("ANALYZE");
    }

    static QString lineOf(const Invoice& invoice)
    {
        return QString("%1 %2").arg(invoice.getInvoiceNo()).arg(invoice.getGrandTotal()->getAmount());
    }

    [[nodiscard]] QString toldRows(const QString& statement) const
    {
        return value("SELECT string_agg(invoice_no || ' ' || invoice_grandtotal_amount, ',') FROM (" + statement +
                     " order by invoice.invoice_date desc, invoice.id desc) told");
    }

    template <class Sale>
    static QString listed(FoundRows& rows, Invoice* (Sale::*invoice)() const)
    {
        while (!rows.isComplete() && rows.readOn()) {
        }
        QStringList lines;
        for (int i = 0; i < rows.count(); ++i)
            lines.append(lineOf(*(static_cast<const Sale*>(rows.glimpse(i))->*invoice)()));
        return lines.join(',');
    }

    /** How often one of the big tables has been read from end to end. */
    [[nodiscard]] int wholeReads() const
    {
        KorQuery().exec("select pg_stat_force_next_flush()");
        return value("SELECT sum(seq_scan) FROM pg_stat_user_tables WHERE relname IN ('invoice', 'makan_ditempat', "
                     "'invoice_makan_ditempat', 'invoice_fast_food', 'invoice_bawa_pulang')")
            .toInt();
    }

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

    BusinessPenjualan* m_sales = nullptr;
};

QTEST_MAIN(TestSalesList)
#include "tst_sales_list.moc"
