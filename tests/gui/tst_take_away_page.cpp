#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/OrderKeys.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DialogBawaPulang.h"
#include "zavel/takeaway/DialogBayarBawaPulang.h"
#include "zavel/takeaway/TabBawaPulang.h"
#include "zavel/takeaway/TableModelBawaPulang.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableView>
#include <QTemporaryDir>

namespace
{
using Column = TableModelBawaPulang::Column;

const char* const printQuestion = "Do you want to print the invoice ?";
} // namespace

/** The page of orders to take away, and an order's life from the telephone to the bag at the counter. */
class TestTakeAwayPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_spool = std::make_unique<QTemporaryDir>();
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_spool->path()));
        m_database = std::make_unique<TestDatabase>();
        loginAsAdmin();
        m_make = std::make_unique<Builders>();
        m_people = std::make_unique<ModalDriver>();
        m_rice = m_make->item("RICE", "Fried rice", 25000);
        m_tea = m_make->item("TEA", "Iced tea", 5000);
    }

    void cleanup()
    {
        m_page.reset();
        m_people.reset();
        m_make.reset();
        m_database.reset();
        qunsetenv("ZAVEL_SPOOL_DIR");
    }

    // --- the list ----------------------------------------------------------------------------------------------------

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
        QCOMPARE(m_page->findChild<QLabel*>("lblCount")->text(), QString("4 Items"));
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

    void nothingHappensWithoutTheRight_data()
    {
        addColumns<int, int, int>("key", "right", "grant");
        addRow("add", int(Qt::Key_F12), int(BusinessPenjualan::TAMBAH_PESANAN), 0);
        addRow("edit", int(Qt::Key_F2), int(BusinessPenjualan::UBAH_PESANAN), 0);
        addRow("edit what another took", int(Qt::Key_F2), int(BusinessPenjualan::UBAH_PESANAN), 1);
        addRow("cancel", int(Qt::Key_Delete), int(BusinessPenjualan::HAPUS_PESANAN), 0);
        addRow("pay", int(Qt::Key_F9), int(BusinessPenjualan::SAVE_INVOICE), 0);
    }

    void nothingHappensWithoutTheRight()
    {
        QFETCH(int, key);
        QFETCH(int, right);
        QFETCH(int, grant);
        m_make->takeAway({{m_tea, 1}}, "Ann");
        loginWithRights("Sales", {{right, grant}});
        show();
        press(static_cast<Qt::Key>(key));
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith("You don't have access."), qPrintable(m_people->lastText()));
        QVERIFY(m_people->finished());
    }

    // --- taking orders -----------------------------------------------------------------------------------------------

    void anOrderGoesFromTheKeysToTheKitchen()
    {
        show();
        m_people->expect<DialogBawaPulang>([this](DialogBawaPulang* form) {
            QVERIFY(!form->findChild<QLineEdit*>("txtKode")->isVisible());
            QTest::keyClicks(form->focusWidget(), "Ann");
            keyIn<DialogBawaPulang>(*m_people, form, {{"rice", "2"}, {"TEA", "1"}}, [](DialogBawaPulang* same) {
                QCOMPARE(same->findChild<QLabel*>("lblTotal")->text(), QString("Rp55,000.00"));
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(column(Column::Menu), QStringList{"Fried rice, Iced tea"});
        QCOMPARE(column(Column::Guest), QStringList{"Ann"});
        QCOMPARE(column(Column::Status), QStringList{"Waiting for the menu"});
        QCOMPARE(m_people->texts(), QStringList());
        const QString slip = takeSlips(m_spool->path());
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
                m_database->run("DELETE FROM item WHERE kode = 'TEA'");
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
                QVERIFY(same->isVisible());
                same->reject();
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished() && m_people->boxes().size() == 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(m_people->lastText().contains("error: insert take away food detail failed.\r\n"));
        QCOMPARE(m_database->value("SELECT count(*) FROM bawa_pulang").toInt(), 0);
        QCOMPARE(takeSlips(m_spool->path()), QString());
    }

    void anEditTellsTheKitchenOnlyWhatChanged()
    {
        m_make->invoice(m_make->takeAway({{m_rice, 1}, {m_tea, 1}}, "Ann"), 30000);
        show();
        m_people->expect<DialogBawaPulang>([this](DialogBawaPulang* form) {
            m_people->expect<DialogSelectMenu>([this](DialogSelectMenu* picker) {
                m_people->expect<DialogBawaPulang>(
                    [](DialogBawaPulang* same) { QTest::keyClick(same->focusWidget(), Qt::Key_Return); });
                typeInto(picker, "txtQty", "3");
                QTest::keyClick(picker->focusWidget(), Qt::Key_Return);
            });
            QTRY_COMPARE(QApplication::activeWindow(), form);
            QCOMPARE(form->findChild<QLineEdit*>("txtNamaPelanggan")->text(), QString("Ann"));
            form->findChild<QTableView*>("tblMenu")->selectRow(1);
            QTest::keyClick(form->focusWidget(), Qt::Key_F2);
        });
        press(Qt::Key_F2);
        QTRY_VERIFY(m_people->finished());
        // What was paid is no longer all that was ordered.
        QTRY_COMPARE(column(Column::Status), QStringList{"Waiting for the menu"});
        const QString slip = takeSlips(m_spool->path());
        QVERIFY2(slip.contains(QRegularExpression("\\*Iced tea +3 ")) && !slip.contains("Fried rice"),
                 qPrintable(slip));
        QCOMPARE(m_people->texts(), QStringList());
    }

    void anOrderIsCancelledUntilThereIsAnInvoice_data()
    {
        addColumns<int, bool, QString>("paid", "sure", "refusal");
        addRow("waiting", -1, true, "");
        addRow("second thoughts", -1, false, "");
        addRow("paid", 5000, true, "This order is already paid\r\n");
        addRow("partly paid", 1000, true, "This order is already paid\r\n");
        addRow("a bill without money", 0, true,
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

    // --- paying ------------------------------------------------------------------------------------------------------

    void theMoneyDecidesWhereTheOrderStands_data()
    {
        addColumns<QString, QString, QString, QString>("paid", "credit", "invoice", "status");
        // What is owed is stored as the form shows it: a shortfall is below zero, change above.
        addRow("nothing yet", "0", "0", "2 0 0 -27000", "Unpaid");
        addRow("a part", "20000", "0", "3 20000 0 -7000", "Partially Paid");
        addRow("exactly", "20000", "7000", "1 20000 7000 0", "Paid");
        addRow("with change", "50000", "0", "1 50000 0 23000", "Paid");
    }

    void theMoneyDecidesWhereTheOrderStands()
    {
        QFETCH(QString, paid);
        QFETCH(QString, credit);
        QFETCH(QString, status);
        const EntityBawaPulang* order = m_make->takeAway({{m_rice, 1}, {m_tea, 1}}, "Ann");
        show();
        QStringList questions{printQuestion};
        if (status == "Paid")
            questions.append(QString("Do you want to close this order: %1 ?").arg(order->getId()));
        pay([&](DialogBayarBawaPulang* form) {
            typeInto(form, "txtDiscPerc", "10");
            typeInto(form, "txtPaid", paid);
            QTest::keyClick(form->focusWidget(), Qt::Key_F10);
            QTRY_VERIFY(form->findChild<QLineEdit*>("txtCredit")->hasFocus());
            QTest::keyClicks(form->focusWidget(), credit);
            for (int i = 0; i < questions.size(); ++i)
                m_people->answer(QMessageBox::No);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QVERIFY(form->isVisible());
            QVERIFY(form->findChild<QLineEdit*>("txtKode")->text().startsWith("TRP"));
            form->reject();
        });
        QCOMPARE(m_people->texts(), questions);
        QCOMPARE(m_people->lastTitle(), QString("Question"));
        QTEST(stored("status, amount_paid_amount, other_payment_amount, net_due_amount", "invoice"), "invoice");
        QCOMPARE(stored("pemesan, bawa_pulang_id", "invoice_bawa_pulang"), QString("Ann %1").arg(order->getId()));
        QTRY_COMPARE(column(Column::Status), QStringList{status});
        QCOMPARE(takeSlips(m_spool->path()), QString());
    }

    void aPaidOrderIsPrintedAndHandedOver()
    {
        m_database->run("DELETE FROM appconfig WHERE appkey = 'cashier_printer'");
        m_database->run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('cashier_printer', true, "
                        "'{\"printer_name\":\"Kasir\",\"no_of_copy\":\"2\",\"column_paper\":\"32\"}', 1)");
        m_make->takeAway({{m_rice, 1}}, "Ann");
        show();
        pay([this](DialogBayarBawaPulang* form) {
            QTest::keyClicks(form->focusWidget(), "30000");
            // By the key, though the money is still being typed: no question, the bill comes, and the order goes.
            m_people->answer(QMessageBox::Yes);
            QTest::keyClick(form->focusWidget(), Qt::Key_P, Qt::ControlModifier);
            QTRY_COMPARE(m_people->texts().size(), 1);
            QCOMPARE(form->findChild<QLabel*>("lblNetDue")->text(), QString("Change :"));
            form->reject();
        });
        QVERIFY(m_people->lastText().startsWith("Do you want to close this order: "));
        QTRY_COMPARE(m_grid->model()->rowCount(), 0);
        const QString bills = takeSlips(m_spool->path());
        QCOMPARE(bills.count("Fried rice"), 2);
        QVERIFY2(bills.contains(QRegularExpression("Change +: +5,000\\b")), qPrintable(bills));
        QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::DONE));
    }

    void doneNeedsAnInvoiceAndAsksForNoMoney()
    {
        m_make->takeAway({{m_rice, 1}}, "Ann");
        show();
        pay([this](DialogBayarBawaPulang* form) {
            QTest::mouseClick(form->findChild<QPushButton*>("btnFinish"), Qt::LeftButton);
            QCOMPARE(m_people->texts(),
                     QStringList{"This order has not been paid yet. Please press the Cancel button to "
                                 "cancel this order"});
            QCOMPARE(m_people->lastTitle(), QString("Error"));
            QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::WAITING_FOR_MENU));
            typeInto(form, "txtPaid", "10000");
            m_people->answer(QMessageBox::No);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::PARTIALY_PAID));
            QTest::mouseClick(form->findChild<QPushButton*>("btnFinish"), Qt::LeftButton);
            QVERIFY(!form->isVisible());
        });
        QTRY_COMPARE(m_grid->model()->rowCount(), 0);
        QCOMPARE(stored("status", "bawa_pulang").toInt(), int(EntityOrder::DONE));
    }

    void aStoredInvoiceOpensAgain()
    {
        EntityBawaPulang* order = m_make->takeAway({{m_rice, 1}, {m_tea, 1}}, "Ann");
        const QString number = m_make->invoice(order, 10000)->getInvoice()->getInvoiceNo();
        show();
        pay([&](DialogBayarBawaPulang* form) {
            const auto shown = [form](const char* name) { return form->findChild<QLineEdit*>(name)->text(); };
            QCOMPARE(shown("txtKode"), number);
            QCOMPARE(shown("txtNamaPelanggan"), QString("Ann"));
            QCOMPARE(shown("txtGrandTotal"), QString("30,000.00"));
            QCOMPARE(shown("txtNetDue"), QString("-20,000.00"));
            QVERIFY(form->findChild<QLabel*>("lblNetDue")->text() == "Less :");
            // The rest of it: the same invoice is paid.
            QTest::keyClicks(form->focusWidget(), "30000");
            m_people->answer(QMessageBox::No);
            m_people->answer(QMessageBox::No);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QCOMPARE(shown("txtKode"), number);
            form->reject();
        });
        QTRY_COMPARE(column(Column::Status), QStringList{"Paid"});
        QCOMPARE(m_database->value("SELECT count(*) FROM invoice_detail").toInt(), 2);
    }

private:
    using OrderStep = std::function<void(DialogBawaPulang*)>;
    using PaymentStep = std::function<void(DialogBayarBawaPulang*)>;

    void show()
    {
        m_page = std::make_unique<TabBawaPulang>();
        m_page->resize(1100, 600);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
        m_grid = m_page->findChild<QTableView*>("tblMeja");
    }

    [[nodiscard]] QString cell(int row, Column column) const
    {
        return m_grid->model()->index(row, column).data().toString();
    }

    [[nodiscard]] QStringList column(Column column) const
    {
        QStringList texts;
        for (int row = 0; row < m_grid->model()->rowCount(); ++row)
            texts.append(cell(row, column));
        return texts;
    }

    /** Presses the key on the page with the row selected. */
    void press(Qt::Key key, int row = 0)
    {
        m_page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
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
        return m_database->value("SELECT concat_ws(' ', " + columns + ") FROM " + table + " ORDER BY id DESC")
            .toString();
    }

    std::unique_ptr<QTemporaryDir> m_spool;
    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<Builders> m_make;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<TabBawaPulang> m_page;
    QTableView* m_grid = nullptr;
    EntityItem* m_rice = nullptr;
    EntityItem* m_tea = nullptr;
};

QTEST_MAIN(TestTakeAwayPage)
#include "tst_take_away_page.moc"
