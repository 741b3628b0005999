#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
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
        run("INSERT INTO meja (id, kode, nama, version) VALUES (2, 'T2', 'Door', 1)");
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
        run("INSERT INTO piutang (id, payment_type, member_id, payment_date, no, grandtotal_currency, "
            "grandtotal_amount, version) VALUES (1, 1, 1, '2026-03-02', 'PIU-1', 'Rp', 10, 1)");
        run("INSERT INTO piutang_detail (piutang_id, invoice_id, amount_paid_currency, amount_paid_amount, "
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
