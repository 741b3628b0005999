#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/ItemStock.h"
#include "pos/masterdata/item/ItemStockReader.h"
#include "pos/masterdata/item/TabItem.h"
#include "pos/masterdata/item/TabSubItem.h"
#include "support/DatabaseTest.h"
#include "support/MasterFamilies.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QRadioButton>
#include <QSemaphore>

namespace
{
/** A stock of two items, 10 of each, that is there when the test says so. */
class SlowStock final : public ItemStock
{
public:
    bool readOnHand(const QDate&, QHash<int, int>& quantities, QString&) const override
    {
        m_ready.acquire();
        quantities = {{1, 10}, {2, 10}};
        return true;
    }
    int getQuantityOnHand(const KorEntity*, const QDate&) override { return 0; }
    void arrive() { m_ready.release(); }

private:
    mutable QSemaphore m_ready;
};
} // namespace

/** The list of items and the form of one, with its grouping, components and accounts, worked on as a manager does. */
class TestItemPage : public PageTest<TabItem>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("UPDATE stok_awal SET jumlah = 8 WHERE item_id = (SELECT id FROM item WHERE kode = 'ns')");
        show();
    }
    void tidy() override
    {
        m_form.reset();
        PageTest::tidy();
    }

private slots:
    void theListTellsPricesStockAndUnit()
    {
        const QStringList headers = headersOf(*m_grid->model());
        QCOMPARE(headers,
                 (QStringList{"ID", "Code", "Name", "Class", "Type", "Unit Cost", "Sales Price", "Stock", "Unit"}));
        QCOMPARE(cell("ns", 3), QString("INV"));
        QCOMPARE(cell("fr", 3), QString("SRV"));
        QCOMPARE(cell("ns", 4), QString("Foods"));
        QCOMPARE(cell("ns", 5), QString("$1.00"));
        QCOMPARE(cell("ns", 6), QString("$2.00"));
        QTRY_COMPARE(cell("ns", 7), QString("8"));
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
        insertRows(*m_database, "item",
                   "kode='i' || i, nama='Item ' || i, sales_acct_code='4050', inventory_acct_code='1200', "
                   "cost_of_sales_acct_code='5000'",
                   300);
        const StatementCount statements;
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(count(), 304);
        QVERIFY2(statements.count() <= 2, qPrintable(QString::number(statements.count())));
        QCOMPARE(label("lblCount"), QString("304 Items"));
    }

    void theStockArrivesBehindTheList()
    {
        QTRY_COMPARE(stock(), QString("8 0 0 0"));
        holdTheStock();
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(stock(), QString("... ... ... ..."));
        m_grid->sortByColumn(7, Qt::DescendingOrder);
        // A refresh in the middle begins anew.
        run("UPDATE stok_awal SET jumlah = 3 WHERE item_id = (SELECT id FROM item WHERE kode = 'llp')");
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(stock(), QString("... ... ... ..."));
        run("COMMIT");
        QTRY_COMPARE(stock(), QString("8 0 0 3"));
        QCOMPARE(column(7), (QStringList{"8", "3", "0", "0"}));
    }

    void whatWasSavedMeanwhileIsNewer()
    {
        SlowStock slow;
        ItemStockReader reader(&slow, nullptr);
        reader.read();
        reader.set(2, 7);
        const auto texts = [&reader] { return reader.text(1) + ' ' + reader.text(2) + ' ' + reader.text(3); };
        QCOMPARE(texts(), QString("... 7 ..."));
        slow.arrive();
        QTRY_COMPARE(texts(), QString("10 7 0"));
        // Until all are read again.
        slow.arrive();
        reader.read();
        QTRY_COMPARE(texts(), QString("10 10 0"));
    }

    void theStockStaysUntilRefresh()
    {
        QTRY_COMPARE(stock(), QString("8 0 0 0"));
        run("UPDATE stok_awal SET jumlah = 5");
        const StatementCount statements;
        click(m_page.get(), "btnSearch");
        QCOMPARE(statements.count(), 1);
        QCOMPARE(stock(), QString("8 0 0 0"));
        m_people->expect<DialogItem>([](DialogItem* form) { QTest::keyClick(form, Qt::Key_Return); });
        choose("ns");
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_COMPARE(stock(), QString("5 0 0 0"));
        QVERIFY2(m_people->boxes().isEmpty(), qPrintable(m_people->lastText()));
        click(m_page.get(), "btnRefresh");
        QTRY_COMPARE(stock(), QString("5 5 5 5"));
    }

    void thePageClosesWhileTheStockIsRead()
    {
        holdTheStock();
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(count("pg_locks WHERE NOT granted"), 1);
        m_page.reset();
        // Cancelled on the server, not left behind.
        QCOMPARE(count("pg_locks WHERE NOT granted"), 0);
        run("COMMIT");
    }

    void aStockThatIsNotReadIsToldInThePage()
    {
        QTRY_COMPARE(stock(), QString("8 0 0 0"));
        run("ALTER TABLE credit_note RENAME TO elsewhere");
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(stock(), QString("? ? ? ?"));
        const auto* failure = m_page->findChild<QLabel*>("lblStockFailure");
        QVERIFY(failure->isVisible());
        QVERIFY2(failure->toolTip().contains("credit_note"), qPrintable(failure->toolTip()));
        QCOMPARE(count(), 4);
        run("ALTER TABLE elsewhere RENAME TO credit_note");
        // The connection is lost in the middle; the next refresh makes another.
        holdTheStock();
        QTest::keyClick(m_grid, Qt::Key_F5);
        QVERIFY(!failure->isVisible());
        QTRY_COMPARE(count("pg_locks WHERE NOT granted"), 1);
        run("SELECT pg_terminate_backend(pid) FROM pg_locks WHERE NOT granted");
        QTRY_VERIFY(failure->isVisible());
        QCOMPARE(stock(), QString("? ? ? ?"));
        run("COMMIT");
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(stock(), QString("8 0 0 0"));
        QVERIFY(!failure->isVisible());
        QVERIFY(m_people->boxes().isEmpty());
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
        insert("item", "kode='tea', nama='Tea', jenis=(SELECT id FROM jenis_item WHERE kode = 'mnm'), "
                       "sales_acct_code='4050', inventory_acct_code='1200', cost_of_sales_acct_code='5000'");
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
        QCOMPARE(value("SELECT jumlah FROM stok_awal, item WHERE item.id = item_id AND kode = 'EGG'"), QString("0"));
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

    void theGroupBoxFollowsTheClass_data()
    {
        const auto row = addColumns<QString, QString, QString>("item", "clicks", "expected");

        row("new", "", "", "");
        row("a new one has no components before it is saved", "", "group", "ticked");
        row("a service is not grouped", "", "group service", "locked");
        row("back to stock", "", "service stock", "");
        row("a saved stock item", "ns", "", "");
        row("a saved stock item is grouped", "ns", "group", "ticked components");
        row("no longer grouped, the box locks itself", "ns", "group group", "locked");
        row("a grouped menu item", "fr", "", "ticked components");
        row("a grouped menu item is no longer", "fr", "group", "locked");
        row("a grouped menu item becomes stock", "fr", "stock", "ticked components");
        row("to stock and back", "fr", "stock service", "locked");
    }
    void theGroupBoxFollowsTheClass()
    {
        FETCH(QString, item, clicks);
        open(item);
        const QMap<QString, QAbstractButton*> buttons{{"service", in<QRadioButton>("rbService")},
                                                      {"stock", in<QRadioButton>("rbStok")},
                                                      {"group", in<QCheckBox>("cbGabungan")}};
        for (const QString& click : clicks.split(' ', Qt::SkipEmptyParts))
            buttons.value(click)->click();

        QStringList state;
        if (!buttons["group"]->isEnabled())
            state.append("locked");
        if (buttons["group"]->isChecked())
            state.append("ticked");
        if (in<QTabWidget>("tabItem")->isTabEnabled(1))
            state.append("components");
        QTEST(state.join(' '), "expected");
    }

    void anAccountIsTypedOrChosen()
    {
        open("ns");
        in<QTabWidget>("tabItem")->setCurrentIndex(2);
        typeInto(m_form.get(), "txtSalesAccount", "1010");
        QCOMPARE(in<QLabel>("lblSales")->text(), QString());
        QTest::keyClick(in<QLineEdit>("txtSalesAccount"), Qt::Key_Tab);
        QCOMPARE(in<QLabel>("lblSales")->text(), QString("Cash on Hand"));

        // The half second after the last key is over when the list stands below the field.
        typeInto(m_form.get(), "txtInvAccount", "checking");
        takeFirst();
        QTRY_COMPARE(in<QLabel>("lblInventory")->text(), QString("Checking Account"));
        QVERIFY(in<QLineEdit>("txtCostOfSalesAccount")->hasFocus());

        const auto* item = static_cast<const EntityItem*>(m_form->getEntity());
        QCOMPARE(item->getSalesAcctCode(), QString("1010"));
        QCOMPARE(item->getInventoryAcctCode(), QString("1020"));
        QCOMPARE(item->getCostOfSalesAcctCode(), QString("5000"));
    }

    void anAccountThatDoesNotExistIsRefused()
    {
        open("ns");
        typeInto(m_form.get(), "txtInvAccount", "9999");
        m_form->accept();
        QCOMPARE(m_people->texts(), QStringList{"Enter the Inventory Account\r\n"});
        QVERIFY(m_form->isVisible());
        QCOMPARE(in<QTabWidget>("tabItem")->currentIndex(), 2);
    }

    void componentsAreAddedOnce()
    {
        run("DELETE FROM grouped_item WHERE original_item_id = (SELECT id FROM item WHERE kode = 'aym')");
        showComponents();
        m_people->expect<DialogSubItem>([](DialogSubItem* form) { form->accept(); });
        m_people->expect<DialogSubItem>([](DialogSubItem* form) {
            typeInto(form, "txtKode", "ns");
            typeInto(form, "txtJumlah", "0.7");
            form->accept();
        });
        m_people->expect<DialogSubItem>([](DialogSubItem* form) {
            typeInto(form, "txtJumlah", "3");
            form->accept();
        });
        m_people->expect<DialogSubItem>([](DialogSubItem* form) {
            QCOMPARE(form->findChild<QLineEdit*>("txtNama")->text(), QString("Rice"));
            typeInto(form, "txtKode", "AYM");
            form->accept();
        });
        QTest::keyClick(m_form.get(), Qt::Key_F12);
        QTRY_COMPARE(in<QTableView>("tblSubItem")->model()->rowCount(), 2);
        QCOMPARE(m_people->texts(), (QStringList{"Enter the item code\r\nEnter the qty\r\n", "Enter the qty\r\n",
                                                 "This item is already in the list, please update it"}));
        QVERIFY(m_people->finished());
        QCOMPARE(quantityOf("ns"), QString("2"));
        QCOMPARE(quantityOf("aym"), QString("3"));
    }

    void aComponentIsChangedAndDeleted()
    {
        showComponents();
        auto* grid = in<QTableView>("tblSubItem");
        grid->selectRow(0);
        m_people->expect<DialogSubItem>([](DialogSubItem* form) {
            QCOMPARE(form->findChild<QLineEdit*>("txtNama")->text(), QString("Rice"));
            QCOMPARE(form->findChild<QLineEdit*>("txtHargaBeli")->text(), QString("1.00"));
            typeInto(form, "txtJumlah", "6");
            form->accept();
        });
        QTest::keyClick(grid, Qt::Key_F2);
        QTRY_COMPARE(quantityOf("ns"), QString("6"));

        m_form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_form.get()));
        m_people->answer(QMessageBox::Yes);
        grid->selectRow(0);
        QTest::keyClick(grid, Qt::Key_Delete);
        QTRY_COMPARE(m_people->texts(), QStringList{"Are you sure you want to delete this sub item: Rice ?"});
        QTRY_COMPARE(quantityOf("ns"), QString());
    }

    void theComponentListHasNothingToClose()
    {
        showComponents();
        QVERIFY(!m_form->findChild<TabSubItem*>()->findChild<QPushButton*>("btnClose")->isVisible());
        QTest::keyClick(in<QTableView>("tblSubItem"), Qt::Key_Escape);
        QTRY_VERIFY(!m_form->isVisible());
    }

private:
    [[nodiscard]] QString cell(const QString& code, int shown) const { return PageTest::cell(rowOf(code), shown); }
    [[nodiscard]] int rowOf(const QString& code) const { return column(1).indexOf(code); }
    void choose(const QString& code) { m_grid->selectRow(rowOf(code)); }

    /** The stock column of the four items, whatever the order of the rows. */
    [[nodiscard]] QString stock() const
    {
        QStringList shown;
        for (const char* code : {"ns", "aym", "fr", "llp"})
            shown.append(cell(code, 7));
        return shown.join(' ');
    }
    /** Another workstation keeps the stock from being read until it commits; the list of items can be read. */
    void holdTheStock() const
    {
        run("BEGIN");
        run("LOCK TABLE credit_note");
    }

    using DatabaseTest::count;
    [[nodiscard]] int count() const { return m_grid->model()->rowCount(); }
    void open(const QString& code = QString())
    {
        m_form = std::make_unique<DialogItem>();
        if (!code.isEmpty())
            m_form->setEntity(service<BusinessItem>("Item")->findByCode(code));
        showForm(m_form.get());
    }

    template <class Widget>
    [[nodiscard]] Widget* in(const char* name) const
    {
        return m_form->findChild<Widget*>(name);
    }
    [[nodiscard]] QString quantityOf(const QString& component)
    {
        return value(
            "SELECT string_agg(jumlah::text, ',') FROM grouped_item, item WHERE item.id = original_item_id AND "
            "kode = '" +
            component + '\'');
    }

    void showComponents()
    {
        open("fr");
        in<QTabWidget>("tabItem")->setCurrentIndex(1);
    }

    std::unique_ptr<DialogItem> m_form;
};

QTEST_MAIN(TestItemPage)
#include "tst_item_page.moc"
