#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/DialogItem.h"
#include "pos/masterdata/item/DialogSubItem.h"
#include "pos/masterdata/item/InventoryTextBox.h"
#include "pos/masterdata/item/ItemTextBox.h"
#include "pos/masterdata/item/ServiceTextBox.h"
#include "pos/masterdata/item/TabSubItem.h"
#include "support/MasterFamilies.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

/** The form of an item: how its class, its grouping, its components and its accounts hang together. */
class TestItemForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_database = std::make_unique<TestDatabase>(); }
    void cleanupTestCase() { m_database.reset(); }
    void init()
    {
        loginAsAdmin();
        m_people = std::make_unique<ModalDriver>();
    }

    void cleanup()
    {
        m_form.reset();
        m_people.reset();
    }

    void theGroupBoxFollowsTheClass_data()
    {
        addColumns<QString, QString, QString>("item", "clicks", "expected");

        addRow("new", "", "", "");
        addRow("a new one has no components before it is saved", "", "group", "ticked");
        addRow("a service is not grouped", "", "group service", "locked");
        addRow("back to stock", "", "service stock", "");
        addRow("a saved stock item", "ns", "", "");
        addRow("a saved stock item is grouped", "ns", "group", "ticked components");
        addRow("no longer grouped, the box locks itself", "ns", "group group", "locked");
        addRow("a grouped menu item", "fr", "", "ticked components");
        addRow("a grouped menu item is no longer", "fr", "group", "locked");
        addRow("a grouped menu item becomes stock", "fr", "stock", "ticked components");
        addRow("to stock and back", "fr", "stock service", "locked");
    }

    void theGroupBoxFollowsTheClass()
    {
        QFETCH(QString, item);
        QFETCH(QString, clicks);
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

    void aNewItemHasTheUsualAccounts()
    {
        open();
        QVERIFY(in<QRadioButton>("rbStok")->isChecked());
        QCOMPARE(in<QLineEdit>("txtSalesAccount")->text(), QString("4050"));
        QCOMPARE(in<QLabel>("lblSales")->text(), QString("Sales of Materials"));
        QCOMPARE(in<QLineEdit>("txtInvAccount")->text(), QString("1200"));
        QCOMPARE(in<QLabel>("lblInventory")->text(), QString("Inventory"));
        QCOMPARE(in<QLineEdit>("txtCostOfSalesAccount")->text(), QString("5000"));
        QCOMPARE(in<QLabel>("lblCostOfSales")->text(), QString("Cost of Sales"));
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
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
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
        m_database->run("DELETE FROM grouped_item WHERE original_item_id = (SELECT id FROM item WHERE kode = 'aym')");
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

    void eachLookupFindsItsOwnItems()
    {
        QLineEdit editor;
        auto* items = service<BusinessItem>("Item");
        const int foods = items->findByCode("ns")->getJenis()->getId();
        const auto found = [](AppLookupBox& box, const QString& text) {
            box.search(text);
            QStringList rows;
            for (int row = 0; row < box.items().size(); ++row)
                rows.append(box.rowText(row, 0).toString() + ' ' + box.rowText(row, box.columnCount() - 1).toString());
            return rows.join(", ");
        };
        InventoryTextBox stock(&editor, items);
        QCOMPARE(found(stock, "RIC"), QString("ns Rice"));
        stock.setItemType(foods + 1);
        QCOMPARE(found(stock, "RIC"), QString());
        ServiceTextBox menu(&editor, items);
        menu.setItemType(foods);
        QCOMPARE(found(menu, "rice"), QString("llp Foods, fr Foods"));
        ItemTextBox any(&editor, items);
        QCOMPARE(found(any, "fri"), QString("aym Fried Chicken, fr Fried Rice"));
        any.setItemType("mnm");
        QCOMPARE(found(any, "fri"), QString());
    }

private:
    void open(const QString& code = QString())
    {
        m_form = std::make_unique<DialogItem>();
        if (!code.isEmpty())
            m_form->setEntity(service<BusinessItem>("Item")->findByCode(code));
        m_form->show();
        QVERIFY(QTest::qWaitForWindowActive(m_form.get()));
    }

    template <class Widget>
    [[nodiscard]] Widget* in(const char* name) const
    {
        return m_form->findChild<Widget*>(name);
    }
    [[nodiscard]] QString quantityOf(const QString& component)
    {
        return m_database
            ->value("SELECT string_agg(jumlah::text, ',') FROM grouped_item, item WHERE item.id = original_item_id AND "
                    "kode = '" +
                    component + '\'')
            .toString();
    }

    void showComponents()
    {
        open("fr");
        in<QTabWidget>("tabItem")->setCurrentIndex(1);
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<DialogItem> m_form;
};

QTEST_MAIN(TestItemForm)
#include "tst_item_form.moc"
