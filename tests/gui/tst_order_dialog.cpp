#include "support/DatabaseTest.h"
#include "zavel/dinein/DialogMakanDitempat.h"
#include "zavel/dinein/TabMakanDitempatDetail.h"

#include <QAbstractItemModelTester>
#include <QTreeWidget>

/** The form of an order on a table and the pickers of its lines. */
class TestOrderDialog : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_make = std::make_unique<Builders>();
        m_rice = m_make->item("RICE", "Fried rice", 25000);
        m_cola = m_make->item("COLA", "Cola", 12000, EntityItem::INV, "DRINK");
        m_t1 = m_make->table("T1", "Terrace");
    }
    void tidy() override { m_form.reset(); }

private slots:
    void anOrderNeedsATableAndALine()
    {
        open();
        m_form->accept();
        QCOMPARE(m_people->lastText(), QString("Please select a table\r\nAdd one or more menu\r\n"));
        QVERIFY(m_form->isVisible());
        QCOMPARE(m_form->errorsOf(m_form->findChild<QLineEdit*>("txtKode")), QStringList{"Please select a table"});
    }

    void aTypedCodeCountsLikeAPickedOne()
    {
        open();
        typeInto(m_form.get(), "txtKode", "t1");
        add({{"RICE", "2"}});
        m_form->accept();
        QVERIFY(!m_form->isVisible());
        const auto* order = static_cast<EntityMakanDitempat*>(m_form->getEntity());
        QCOMPARE(order->getMeja()->getId(), m_t1->getId());
        QCOMPARE(order->getStatus(), int(EntityOrder::WAITING_FOR_MENU));
        QCOMPARE(order->getTgl(), QDate::currentDate());
        const EntityOrderDetail* line = order->getDetails().value(0);
        QVERIFY(line);
        QCOMPARE(line->getTotal()->getAmount(), 50000.0);
        QCOMPARE(line->getTotal()->getCurrency(), QString("Rp"));
        QCOMPARE(line->getPriceEach()->getAmount(), 25000.0);
    }

    void anUnknownCodeIsNoTable_data() { addRows<QString>("code", {{"unknown", "T9"}, {"cleared", ""}}); }
    void anUnknownCodeIsNoTable()
    {
        QFETCH(QString, code);
        open(m_t1);
        QCOMPARE(shown(m_form.get(), "txtMeja"), QString("Terrace"));
        add({{"RICE", "1"}});
        m_form->findChild<QLineEdit*>("txtKode")->clear();
        typeInto(m_form.get(), "txtKode", code);
        m_form->accept();
        QCOMPARE(m_people->lastText(), QString("Please select a table\r\n"));
        QVERIFY(m_form->isVisible());
    }

    void aMemberIsFoundByCodeAndForgottenWhenCleared()
    {
        EntityMember* member = m_make->member("M1", "Budi");
        open(m_t1);
        add({{"RICE", "1"}});
        typeInto(m_form.get(), "txtMember", "m1");
        QVERIFY(m_form->validate());
        QCOMPARE(static_cast<EntityMakanDitempat*>(m_form->getEntity())->getMember()->getId(), member->getId());
        QCOMPARE(shown(m_form.get(), "txtMemberName"), QString("Budi"));

        m_form->findChild<QLineEdit*>("txtMember")->clear();
        QVERIFY(m_form->validate());
        QVERIFY(!static_cast<EntityMakanDitempat*>(m_form->getEntity())->getMember());

        typeInto(m_form.get(), "txtMember", "M2");
        QVERIFY(!m_form->validate());
    }

    void theMenuIsOneKeyAway()
    {
        open(m_t1);
        QTest::keyClick(m_form.get(), Qt::Key_F3);
        QVERIFY(button("btnAdd")->hasFocus());
        QCOMPARE(m_form->findChild<QTabWidget*>("tabDetail")->tabText(0), QString("[F3] Menu"));
    }

    void theLinesShowTodaysPricesAndWhatTheKitchenSays()
    {
        EntityMakanDitempatDetail* line = m_make->line(m_rice, 2, "hot");
        line->setKitchenStatus("Processed");
        m_rice->setHargaJualLokal(new Money(m_rice, 30000, "Rp"));
        EntityItem bare;
        bare.setKode("X");
        EntityMakanDitempatDetail* unitless = m_make->line(m_rice, 1);
        unitless->setItem(&bare);
        TableModelMakanDitempatDetail model({line, unitless}, nullptr);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(headersOf(model),
                 (QStringList{"Code", "Name", "Qty", "Unit", "Unit Price", "Amount", "Status", "Description"}));
        QCOMPARE(cells(model, 0), (QStringList{"RICE", "Fried rice", "2", m_rice->getSatuan()->getNama(), "Rp30,000.00",
                                               "Rp50,000.00", "Processed", "hot"}));
        QCOMPARE(model.index(0, 2).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
        QCOMPARE(model.index(1, 3).data().toString(), QString());
    }

    void theSameItemTwiceAsksWhetherToUpdate_data()
    {
        const auto row = addColumns<bool, int, QString>("update", "qty", "sum");
        row("update", true, 5, "Rp125,000.00");
        row("leave", false, 2, "Rp50,000.00");
    }
    void theSameItemTwiceAsksWhetherToUpdate()
    {
        QFETCH(bool, update);
        QFETCH(int, qty);
        QFETCH(QString, sum);
        open(m_t1);
        m_people->answer(update ? QMessageBox::Yes : QMessageBox::No);
        add({{"RICE", "2"}, {"rice", "5"}});
        QCOMPARE(m_people->texts(),
                 QStringList{"This item: Fried rice is already exist in the list. Do you want to update "
                             "it with this data?"});
        QCOMPARE(m_people->lastTitle(), QString("Question"));
        QCOMPARE(lines()->lines().size(), 1);
        QCOMPARE(lines()->orderLines().first()->getQty(), qty);
        QCOMPARE(total(), sum);
    }

    void aDeletedLineIsTakenOffTheOrder()
    {
        EntityMakanDitempat* order = m_make->openOrder(m_t1, {m_make->line(m_rice, 1), m_make->line(m_cola, 2)});
        const EntityOrder::Lines before = order->getDetails();
        open();
        auto* own = m_make->order(m_t1, before);
        own->setParent(nullptr);
        m_form->setEntity(own);
        QCOMPARE(total(), QString("Rp49,000.00"));
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::Yes);
        grid()->selectAll();
        button("btnDelete")->click();
        QCOMPARE(m_people->texts(), (QStringList{"Are you sure you want to delete this item: Fried rice ?",
                                                 "Are you sure you want to delete this item: Cola ?"}));
        QCOMPARE(total(), QString("Rp25,000.00"));
        QCOMPARE(lines()->findChild<QLabel*>("lblCount")->text(), QString("1 Items"));
        const auto* order2 = static_cast<EntityMakanDitempat*>(m_form->getEntity());
        QCOMPARE(order2->getDetails(), before.mid(0, 1));
        QCOMPARE(order2->getRemovedDetails(), before.mid(1));
    }

    void eachKindOfItemHasItsPicker()
    {
        open(m_t1);
        m_people->expect<DialogSelectInventory>([](DialogSelectInventory* picker) {
            typeInto(picker, "txtCode", "COLA");
            typeInto(picker, "txtQty", "3");
            confirm(picker, "txtQty");
        });
        m_people->expect<DialogSelectInventory>([](DialogSelectInventory* picker) { picker->reject(); });
        button("btnAddInv")->click();
        QCOMPARE(total(), QString("Rp36,000.00"));

        m_people->expect<DialogSelectInventory>([](DialogSelectInventory* picker) {
            QVERIFY(!picker->findChild<QLineEdit*>("txtCode")->isEnabled());
            QVERIFY(!picker->findChild<QLineEdit*>("txtName")->isEnabled());
            QCOMPARE(shown(picker, "txtName"), QString("Cola"));
            typeInto(picker, "txtQty", "1");
            QCOMPARE(shown(picker, "txtAmount"), QString("12,000.00"));
            confirm(picker, "txtQty");
        });
        grid()->selectRow(0);
        button("btnEdit")->click();
        QCOMPARE(total(), QString("Rp12,000.00"));

        // A change that is given up leaves the line as it was.
        m_people->expect<DialogSelectInventory>([](DialogSelectInventory* picker) {
            typeInto(picker, "txtQty", "9");
            picker->reject();
        });
        button("btnEdit")->click();
        QCOMPARE(total(), QString("Rp12,000.00"));
        QVERIFY(m_people->finished());
    }

    void aPickerSaysWhatIsMissing_data()
    {
        const auto row = addColumns<QString, QString, QString>("code", "qty", "text");
        row("nothing", "", "", "Enter the item code\r\nEnter the qty of the item\r\n");
        row("unknown item", "NONE", "1", "Please enter a valid item code\r\n");
        row("no quantity", "RICE", "", "Enter the qty of the item\r\n");
        row("zero", "RICE", "0", "Enter the qty of the item\r\n");
        row("fewer than none", "RICE", "-3", "Enter the qty of the item\r\n");
        row("no number", "RICE", "two", "Enter the qty of the item\r\n");
        row("more than money holds", "RICE", "90000",
            "This amount is too large for one line. Please enter a smaller qty\r\n");
    }
    void aPickerSaysWhatIsMissing()
    {
        FETCH(QString, code, qty, text);
        open(m_t1);
        m_people->expect<DialogSelectMenu>([&](DialogSelectMenu* picker) {
            typeInto(picker, "txtCode", code);
            typeInto(picker, "txtQty", qty);
            picker->accept();
            QVERIFY(picker->isVisible());
            picker->reject();
        });
        button("btnAdd")->click();
        QCOMPARE(m_people->texts(), QStringList{text});
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(lines()->lines().isEmpty());
    }

    void halfPortionsAreRounded()
    {
        open(m_t1);
        m_people->answer(QMessageBox::Yes);
        add({{"RICE", "1.5"}});
        QCOMPARE(m_people->lastText(), QString("Qty: 1.5 will be stored as 2\n\nDo you want to go on?"));
        QCOMPARE(lines()->orderLines().first()->getQty(), 2);
        QCOMPARE(total(), QString("Rp50,000.00"));
    }

    void anUnknownCodeOpensTheListAtOnce()
    {
        open(m_t1);
        m_people->expect<DialogSelectMenu>([](DialogSelectMenu* picker) {
            typeInto(picker, "txtCode", "fried");
            confirm(picker, "txtCode");
            QWidget* popup = QApplication::activePopupWidget();
            QVERIFY(popup);
            QTest::keyClick(popup, Qt::Key_Return);
            QCOMPARE(shown(picker, "txtCode"), QString("RICE"));
            QCOMPARE(shown(picker, "txtName"), QString("Fried rice"));
            QVERIFY(picker->findChild<QLineEdit*>("txtQty")->hasFocus());
            QTest::keyClicks(picker->focusWidget(), "3");
            QCOMPARE(shown(picker, "txtAmount"), QString("75,000.00"));
            confirm(picker, "txtQty");
        });
        m_people->expect<DialogSelectMenu>([](DialogSelectMenu* picker) { picker->reject(); });
        button("btnAdd")->click();
        QCOMPARE(total(), QString("Rp75,000.00"));
    }

    void theTypeNarrowsTheListAndStaysForTheNextLine()
    {
        m_make->item("TEA", "Iced tea", 5000, EntityItem::SRV, "DRINK");
        open(m_t1);
        m_people->expect<DialogSelectMenu>([](DialogSelectMenu* picker) {
            auto* types = picker->findChild<QComboBox*>("ddlType");
            QCOMPARE(types->itemText(0), QString("All"));
            QCOMPARE(types->itemData(0).toInt(), -1);
            types->setCurrentIndex(types->findText("Drink"));
            typeInto(picker, "txtCode", "e");
            confirm(picker, "txtCode");
            auto* popup = qobject_cast<QTreeWidget*>(QApplication::activePopupWidget());
            QVERIFY(popup);
            QCOMPARE(popup->topLevelItemCount(), 1);
            QTest::keyClick(popup, Qt::Key_Return);
            QTest::keyClicks(picker->focusWidget(), "1");
            confirm(picker, "txtQty");
        });
        m_people->expect<DialogSelectMenu>([](DialogSelectMenu* picker) {
            QCOMPARE(picker->findChild<QComboBox*>("ddlType")->currentText(), QString("Drink"));
            picker->reject();
        });
        button("btnAdd")->click();
        QCOMPARE(total(), QString("Rp5,000.00"));
        QVERIFY(m_people->finished());
    }

    void anOrderBeyondWhatMoneyHoldsIsRefused()
    {
        m_make->item("BANQ", "Banquet", 1500000000);
        m_make->item("WINE", "Wine cellar", 1500000000);
        open(m_t1);
        add({{"BANQ", "1"}, {"WINE", "1"}});
        QCOMPARE(total(), QString("Rp3,000,000,000.00"));
        m_form->accept();
        QCOMPARE(m_people->lastText(),
                 QString("The total of this order is too large. Please take it as two orders\r\n"));
        QVERIFY(m_form->isVisible());
    }

    void aSecondSaveLeavesNoTraceOfAMoveThatFailed()
    {
        m_make->table("T2");
        open();
        auto* order = m_make->order(m_t1, {m_make->line(m_rice, 1)});
        order->setPindahMeja("T0");
        order->setParent(nullptr);
        m_form->setEntity(order);
        int saves = 0;
        m_form->setSaver([&] {
            m_form->getEntity();
            return ++saves == 2;
        });
        typeInto(m_form.get(), "txtKode", "T2");
        m_form->accept();
        QVERIFY(m_form->isVisible());
        QCOMPARE(order->getPindahMeja(), QString("T0>T1"));
        typeInto(m_form.get(), "txtKode", "T1");
        m_form->accept();
        QVERIFY(!m_form->isVisible());
        QCOMPARE(order->getPindahMeja(), QString("T0"));
        QCOMPARE(order->getMeja()->getId(), m_t1->getId());
    }

private:
    [[nodiscard]] QPushButton* button(const char* name) const { return m_form->findChild<QPushButton*>(name); }
    [[nodiscard]] QTableView* grid() const { return m_form->findChild<QTableView*>("tblMenu"); }
    [[nodiscard]] TabMakanDitempatDetail* lines() const { return m_form->findChild<TabMakanDitempatDetail*>(); }
    [[nodiscard]] QString total() const { return labelled(m_form.get(), "lblTotal"); }
    /** Rounds of the picker: codes with quantities, then cancelled. */
    void add(const QList<QPair<QString, QString>>& picks)
    {
        for (const auto& pick : picks) {
            m_people->expect<DialogSelectMenu>([pick](DialogSelectMenu* picker) {
                typeInto(picker, "txtCode", pick.first);
                typeInto(picker, "txtQty", pick.second);
                confirm(picker, "txtQty");
            });
        }
        m_people->expect<DialogSelectMenu>([](DialogSelectMenu* picker) { picker->reject(); });
        button("btnAdd")->click();
    }

    void open(EntityMeja* table = nullptr)
    {
        m_form = std::make_unique<DialogMakanDitempat>(nullptr, table);
        showForm(m_form.get());
    }

    std::unique_ptr<DialogMakanDitempat> m_form;
    EntityItem* m_rice = nullptr;
    EntityItem* m_cola = nullptr;
    EntityMeja* m_t1 = nullptr;
};

QTEST_MAIN(TestOrderDialog)
#include "tst_order_dialog.moc"
