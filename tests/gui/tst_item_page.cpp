#include "pos/masterdata/item/DialogItem.h"
#include "pos/masterdata/item/TabItem.h"
#include "support/DatabaseTest.h"
#include "support/MasterFamilies.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>

/** The list of items, worked on as a manager does. */
class TestItemPage : public PageTest<TabItem>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("UPDATE stok_awal SET jumlah = 8 WHERE item_id = (SELECT id FROM item WHERE kode = 'ns')");
        m_page = std::make_unique<TabItem>();
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
        m_grid = m_page->findChild<QTableView*>("tblItem");
    }

private slots:
    void theListTellsPricesStockAndUnit()
    {
        QStringList headers;
        for (int column = 0; column < m_grid->model()->columnCount(); ++column)
            headers.append(m_grid->model()->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(headers,
                 (QStringList{"ID", "Code", "Name", "Class", "Type", "Unit Cost", "Sales Price", "Stock", "Unit"}));
        QCOMPARE(cell("ns", 3), QString("INV"));
        QCOMPARE(cell("fr", 3), QString("SRV"));
        QCOMPARE(cell("ns", 4), QString("Foods"));
        QCOMPARE(cell("ns", 5), QString("$1.00"));
        QCOMPARE(cell("ns", 6), QString("$2.00"));
        QCOMPARE(cell("ns", 7), QString("8"));
        QCOMPARE(cell("aym", 7), QString("0"));
        QCOMPARE(cell("ns", 8), QString("Kilogram"));
        for (int column = 0; column < headers.size(); ++column) {
            const bool isRight = column >= 4 && column <= 7;
            QCOMPARE(m_grid->model()->index(0, column).data(Qt::TextAlignmentRole).toInt() == 130, isRight);
        }
        QVERIFY(m_grid->columnWidth(2) >= 200);
        QVERIFY(m_grid->columnWidth(2) > QFontMetrics(m_grid->font()).horizontalAdvance(cell("llp", 2)));
        for (int column : {5, 6, 7})
            QVERIFY(m_grid->columnWidth(column) >= 120);
        const QAbstractItemModelTester tester(qobject_cast<QAbstractProxyModel*>(m_grid->model())->sourceModel(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void aLongListTakesTwoStatements()
    {
        run("INSERT INTO item (kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, "
            "harga_beli_amount, harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, "
            "inventory_acct_code, cost_of_sales_acct_code, version) SELECT 'i' || n, 1, false, 'Item ' || n, "
            "jenis, satuan, 'Rp', n, 'Rp', 2 * n, '4050', '1200', '5000', 1 FROM item, generate_series(1, 300) n "
            "WHERE kode = 'ns'");
        const StatementCount statements;
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(count(), 304);
        QVERIFY2(statements.count() <= 2, qPrintable(QString::number(statements.count())));
        QCOMPARE(m_page->findChild<QLabel*>("lblCount")->text(), QString("304 Items"));
    }

    void filterAndTypeNarrowTheList_data()
    {
        const auto row = addColumns<QString, QString, int>("filter", "type", "rows");
        row("all", "", "All", 5);
        row("by name", "RICE", "All", 3);
        row("drinks", "", "Drinks", 1);
        row("rice among drinks", "rice", "Drinks", 0);
        row("rice among foods", "rice", "Foods", 3);
    }
    void filterAndTypeNarrowTheList()
    {
        FETCH(QString, filter, type);
        QFETCH(int, rows);
        run("INSERT INTO item (kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, "
            "harga_beli_amount, harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, "
            "inventory_acct_code, cost_of_sales_acct_code, version) SELECT 'tea', 2, false, 'Tea', "
            "(SELECT id FROM jenis_item WHERE kode = 'mnm'), satuan, 'Rp', 1, 'Rp', 2, '4050', '1200', '5000', 1 "
            "FROM item WHERE kode = 'ns'");
        auto* types = m_page->findChild<QComboBox*>("ddlItemType");
        QCOMPARE(types->itemText(0), QString("All"));
        types->setCurrentText(type);
        QTest::keyClick(m_page.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(m_page->focusWidget(), filter);
        QTest::keyClick(m_page->focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(count(), rows);
        QVERIFY(m_people->boxes().isEmpty());
    }

    void aNewItemIsTyped()
    {
        m_people->expect<DialogItem>([](DialogItem* form) {
            QTRY_VERIFY(form->findChild<QLineEdit*>("txtKode")->hasFocus());
            typeInto(form, "txtKode", "EGG");
            typeInto(form, "txtNama", "Egg, large");
            typeInto(form, "txtHargaBeli", "1,500");
            typeInto(form, "txtHargaJualLokal", "2500");
            form->findChild<QComboBox*>("ddlJenis")->setCurrentText("Foods");
            form->findChild<QComboBox*>("ddlSatuan")->setCurrentText("Packs");
            QTest::keyClick(form, Qt::Key_Return);
        });
        QTest::keyClick(m_page.get(), Qt::Key_F12);
        QTRY_COMPARE(cell("EGG", 5), QString("$1,500.00"));
        QCOMPARE(cell("EGG", 6), QString("$2,500.00"));
        QCOMPARE(cell("EGG", 4), QString("Foods"));
        QCOMPARE(cell("EGG", 8), QString("Packs"));
        QCOMPARE(value("SELECT sales_acct_code || ' ' || inventory_acct_code || ' ' || cost_of_sales_acct_code "
                       "FROM item WHERE kode = 'EGG'"),
                 QString("4050 1200 5000"));
        QCOMPARE(
            m_database->value("SELECT jumlah FROM stok_awal, item WHERE item.id = item_id AND kode = 'EGG'").toInt(),
            0);
    }

    void whatIsMissingIsToldAtOnce()
    {
        m_people->expect<DialogItem>([](DialogItem* form) {
            form->findChild<QComboBox*>("ddlJenis")->clear();
            form->findChild<QComboBox*>("ddlSatuan")->clear();
            form->findChild<QTabWidget*>("tabItem")->setCurrentIndex(2);
            for (const char* account : {"txtSalesAccount", "txtInvAccount", "txtCostOfSalesAccount"})
                typeInto(form, account, "");
            form->accept();
        });
        m_people->expect<DialogItem>([](DialogItem* form) {
            QCOMPARE(form->findChild<QTabWidget*>("tabItem")->currentIndex(), 0);
            form->reject();
        });
        QTest::keyClick(m_page.get(), Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(m_people->texts(), QStringList{"Enter the item code\r\nEnter the item name\r\nSelect the item type\r\n"
                                                "Select the item unit\r\nEnter the unit cost\r\nEnter sales price\r\n"
                                                "Enter the Sales Account\r\nEnter the Inventory Account\r\n"
                                                "Enter the Cost of Sales Account\r\n"});
    }

    void aGroupedMenuItemStaysGroupedWhenItsPriceChanges()
    {
        m_people->expect<DialogItem>([](DialogItem* form) {
            typeInto(form, "txtHargaJualLokal", "7");
            QTest::keyClick(form, Qt::Key_Return);
        });
        choose("fr");
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_COMPARE(cell("fr", 6), QString("$7.00"));
        QVERIFY2(m_people->boxes().isEmpty(), qPrintable(m_people->lastText()));
        QCOMPARE(value("SELECT is_group::text || item_type || version FROM item WHERE kode = 'fr'"), QString("true22"));
    }

    void aTakenCodeIsRefusedButTheOwnIsNot()
    {
        m_people->expect<DialogItem>([](DialogItem* form) {
            typeInto(form, "txtKode", "AYM");
            QTest::keyClick(form, Qt::Key_Return);
        });
        m_people->expect<DialogItem>([](DialogItem* form) {
            typeInto(form, "txtKode", "NS");
            QTest::keyClick(form, Qt::Key_Return);
        });
        choose("ns");
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_COMPARE(cell("NS", 2), QString("Rice"));
        QCOMPARE(m_people->texts(), QStringList{"This item code is already in use please use another code\r\n"});
    }

private:
    [[nodiscard]] QString cell(const QString& code, int column) const
    {
        for (int row = 0; row < count(); ++row) {
            if (m_grid->model()->index(row, 1).data().toString() == code)
                return m_grid->model()->index(row, column).data().toString();
        }
        return "no such row";
    }

    void choose(const QString& code)
    {
        for (int row = 0; row < count(); ++row) {
            if (m_grid->model()->index(row, 1).data().toString() == code)
                m_grid->selectRow(row);
        }
    }

    [[nodiscard]] int count() const { return m_grid->model()->rowCount(); }
};

QTEST_MAIN(TestItemPage)
#include "tst_item_page.moc"
