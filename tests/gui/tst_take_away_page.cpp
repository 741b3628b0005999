#include "support/DatabaseTest.h"
#include "support/OrderKeys.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DialogBawaPulang.h"
#include "zavel/takeaway/DialogBayarBawaPulang.h"
#include "zavel/takeaway/TabBawaPulang.h"
#include "zavel/takeaway/TableModelBawaPulang.h"

using Column = TableModelBawaPulang::Column;

/** The page of orders to take away, and an order's life from the telephone to the bag at the counter. */
class TestTakeAwayPage : public PageTest<TabBawaPulang>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_make = std::make_unique<Builders>();
        m_rice = m_make->item("RICE", "Fried rice", 25000);
        m_tea = m_make->item("TEA", "Iced tea", 5000);
    }

private slots:
    void theListShowsWhatIsOpenAndNarrowsToAStatus()
    {
        const EntityBawaPulang* first = m_make->takeAway({{m_rice, 2}, {m_tea, 1}}, "Ann");
        m_make->invoice(m_make->takeAway({{m_tea, 1}}, "Bob"), 5000);
        m_make->invoice(m_make->takeAway({{m_tea, 1}}, "Cid"), 1000);
        m_make->invoice(m_make->takeAway({{m_tea, 1}}, "Dot"), 0);
        QVERIFY(service<BusinessPenjualan>("Sales")->bawaPulangSelesai(m_make->takeAway({{m_tea, 1}}, "Eve")));
        show();
        QCOMPARE(m_page->windowTitle(), QString("Take Away Foods"));
        QCOMPARE(cell(0, Column::Id).toInt(), first->getId());
        QCOMPARE(column(Column::Guest), (QStringList{"Ann", "Bob", "Cid", "Dot"}));
        QCOMPARE(column(Column::Status), (QStringList{"Waiting for the menu", "Paid", "Partially Paid", "Unpaid"}));
        QCOMPARE(cell(0, Column::Menu), QString("Fried rice, Iced tea"));
        QCOMPARE(label("lblCount"), QString("4 Items"));
        QCOMPARE(TableModelBawaPulang::statusText(EntityOrder::DONE), QString("Selesai"));

        auto* status = m_page->findChild<QComboBox*>("ddlStatus");
        const QList<QPair<QString, QStringList>> found{
            {"Paid", {"Bob"}}, {"Partially Paid", {"Cid"}}, {"Waiting for the order", {"Ann"}}};
        for (const auto& narrowed : found) {
            QTest::keyClick(status, Qt::Key_Down);
            QCOMPARE(status->currentText(), narrowed.first);
            QTest::mouseClick(m_page->findChild<QPushButton*>("btnSearch"), Qt::LeftButton);
            QCOMPARE(column(Column::Guest), narrowed.second);
        }
    }

    void anOrderGoesFromTheKeysToTheKitchen()
    {
        show();
        m_people->expect<DialogBawaPulang>([this](DialogBawaPulang* form) {
            QVERIFY(!form->findChild<QLineEdit*>("txtKode")->isVisible());
            QTest::keyClicks(form->focusWidget(), "Ann");
            keyIn<DialogBawaPulang>(*m_people, form, {{"rice", "2"}, {"TEA", "1"}}, [](DialogBawaPulang* same) {
                QCOMPARE(labelled(same, "lblTotal"), QString("Rp55,000.00"));
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(column(Column::Menu), QStringList{"Fried rice, Iced tea"});
        QCOMPARE(column(Column::Guest), QStringList{"Ann"});
        QCOMPARE(column(Column::Status), QStringList{"Waiting for the menu"});
        QCOMPARE(m_people->texts(), QStringList());
        const QString slip = takeSlips();
        QVERIFY2(slip.contains("Take Away : " + cell(0, Column::Id)), qPrintable(slip));
        QVERIFY2(slip.contains(" Fried rice") && slip.contains(" Iced tea"), qPrintable(slip));
        QCOMPARE(m_database->value("SELECT tgl FROM bawa_pulang WHERE createdby = 1").toDate(), QDate::currentDate());
        QCOMPARE(m_database->value("SELECT sum(total_amount) FROM bawa_pulang_detail").toDouble(), 55000.0);

        // The next guest wants the same: that is another order.
        m_people->expect<DialogBawaPulang>([this](DialogBawaPulang* form) {
            keyIn<DialogBawaPulang>(*m_people, form, {{"TEA", "1"}}, [](DialogBawaPulang* same) {
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        press(Qt::Key_F12);
        QTRY_COMPARE(column(Column::Menu), (QStringList{"Fried rice, Iced tea", "Iced tea"}));
    }

    void anOrderThatCannotBeSavedStaysInTheForm()
    {
        show();
        m_people->expect<DialogBawaPulang>([this](DialogBawaPulang* form) {
            keyIn<DialogBawaPulang>(*m_people, form, {{"TEA", "1"}}, [this](DialogBawaPulang* same) {
                run("DELETE FROM item WHERE kode = 'TEA'");
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
                QVERIFY(same->isVisible());
                same->reject();
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished() && m_people->boxes().size() == 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(m_people->lastText().contains("error: insert take away food detail failed.\r\n"));
        QCOMPARE(count("bawa_pulang"), 0);
        QCOMPARE(takeSlips(), QString());
    }

    void anOrderIsCancelledUntilThereIsAnInvoice_data()
    {
        const auto row = addColumns<int, bool, QString>("paid", "sure", "refusal");
        row("waiting", -1, true, "");
        row("second thoughts", -1, false, "");
        row("paid", 5000, true, "This order is already paid\r\n");
        row("partly paid", 1000, true, "This order is already paid\r\n");
        row("a bill without money", 0, true,
            "Order 1 already has an invoice. Please finish the payment, or press Done in the payment form");
    }
    void anOrderIsCancelledUntilThereIsAnInvoice()
    {
        QFETCH(int, paid);
        QFETCH(bool, sure);
        QFETCH(QString, refusal);
        EntityBawaPulang* order = m_make->takeAway({{m_tea, 1}}, "Ann");
        if (paid >= 0)
            m_make->invoice(order, paid);
        show();
        m_people->answer(sure ? QMessageBox::Yes : QMessageBox::No);
        press(Qt::Key_Delete);
        QStringList told{QString("Are you sure you want to delete this order? order id: %1 ").arg(order->getId())};
        if (!refusal.isEmpty())
            told.append(refusal);
        QTRY_COMPARE(m_people->texts(), told);
        QCOMPARE(m_people->boxes().first().title, QString("Delete"));
        QTRY_COMPARE(m_grid->model()->rowCount(), sure && paid < 0 ? 0 : 1);
    }

    void aPaidOrderIsPrintedAndHandedOver()
    {
        run("DELETE FROM appconfig WHERE appkey = 'cashier_printer'");
        run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('cashier_printer', true, "
            "'{\"printer_name\":\"Kasir\",\"no_of_copy\":\"2\",\"column_paper\":\"32\"}', 1)");
        m_make->takeAway({{m_rice, 1}}, "Ann");
        show();
        pay([this](DialogBayarBawaPulang* form) {
            QTest::keyClicks(form->focusWidget(), "30000");
            // The shortcut while the amount is being typed: no question, the bill is printed, and the order is
            // finished.
            m_people->answer(QMessageBox::Yes);
            QTest::keyClick(form->focusWidget(), Qt::Key_P, Qt::ControlModifier);
            QTRY_COMPARE(m_people->texts().size(), 1);
            QCOMPARE(labelled(form, "lblNetDue"), QString("Change :"));
            form->reject();
        });
        QVERIFY(m_people->lastText().startsWith("Do you want to close this order: "));
        QTRY_COMPARE(m_grid->model()->rowCount(), 0);
        const QString bills = takeSlips();
        QCOMPARE(bills.count("Fried rice"), 2);
        QVERIFY2(bills.contains(QRegularExpression("Change +: +5,000\\b")), qPrintable(bills));
        QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::DONE));
    }

    void doneNeedsAnInvoiceAndAsksForNoMoney()
    {
        m_make->takeAway({{m_rice, 1}}, "Ann");
        show();
        pay([this](DialogBayarBawaPulang* form) {
            click(form, "btnFinish");
            QCOMPARE(m_people->texts(),
                     QStringList{"This order has not been paid yet. Please press the Cancel button to "
                                 "cancel this order"});
            QCOMPARE(m_people->lastTitle(), QString("Error"));
            QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::WAITING_FOR_MENU));
            typeInto(form, "txtPaid", "10000");
            m_people->answer(QMessageBox::No);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::PARTIALY_PAID));
            // What is owed is stored as the form shows it: a shortfall is below zero.
            QCOMPARE(stored("status, net_due_amount", "invoice"), QString("3 -15000"));
            click(form, "btnFinish");
            QVERIFY(!form->isVisible());
        });
        QTRY_COMPARE(m_grid->model()->rowCount(), 0);
        QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::DONE));
    }

private:
    using OrderStep = std::function<void(DialogBawaPulang*)>;
    using PaymentStep = std::function<void(DialogBayarBawaPulang*)>;

    /** Presses the key on the page with the row selected. */
    void press(Qt::Key key, int row = 0)
    {
        bringToFront(m_page.get());
        m_grid->setFocus();
        m_grid->selectRow(row);
        QTest::keyClick(m_grid, key);
    }

    void pay(const PaymentStep& step)
    {
        m_people->expect<DialogBayarBawaPulang>([step](DialogBayarBawaPulang* form) {
            QTRY_COMPARE(QApplication::activeWindow(), form);
            QTRY_VERIFY(form->findChild<QLineEdit*>("txtPaid")->hasFocus());
            step(form);
        });
        press(Qt::Key_F9);
        QTRY_VERIFY(m_people->finished());
    }

    QString stored(const QString& columns, const QString& table)
    {
        return value("SELECT concat_ws(' ', " + columns + ") FROM " + table + " ORDER BY id DESC");
    }

    EntityItem* m_rice = nullptr;
    EntityItem* m_tea = nullptr;
};

QTEST_MAIN(TestTakeAwayPage)
#include "tst_take_away_page.moc"
