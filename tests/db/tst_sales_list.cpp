#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/list/SalesFilter.h"
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
