#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/DialogItem.h"
#include "pos/masterdata/item/DialogSubItem.h"
#include "pos/masterdata/item/TabSubItem.h"
#include "support/DatabaseTest.h"
#include "support/MasterFamilies.h"

#include <QCheckBox>
#include <QRadioButton>

/** The item form: how class, grouping, components and accounts depend on each other. */
class TestItemForm : public DatabaseTest
{
    Q_OBJECT

protected:
    void tidy() override { m_form.reset(); }

private slots:
    void initTestCase() { keepDatabase(); }

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

        // The list opens half a second after the last key.
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

QTEST_MAIN(TestItemForm)
#include "tst_item_form.moc"
