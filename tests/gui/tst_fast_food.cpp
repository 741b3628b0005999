#include "support/DatabaseTest.h"
#include "support/OrderKeys.h"
#include "support/SalesRows.h"
#include "zavel/fastfood/DialogFastFood.h"
#include "zavel/fastfood/DialogSelectFastFoodInventory.h"
#include "zavel/fastfood/DialogSelectFastFoodMenu.h"
#include "zavel/fastfood/TabFastFood.h"
#include "zavel/fastfood/TableModelFastFood.h"
#include "zavel/fastfood/TableModelFastFoodDetail.h"
#include "zavel/service/BusinessPenjualan.h"

namespace
{
using Column = TableModelFastFood::Column;
const char* const printQuestion = "Do you want to print this invoice ?";
} // namespace

/** Counter sales: rice at 25.000 from stock, tea at 5.000 from the menu. */
class TestFastFood : public PageTest<TabFastFood>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        insertSeller(*m_database, 1, "admin");
        insert("bank", "kode='1010', nama='Cash on Hand', active=true");
        run("UPDATE item SET harga_jual_lokal_amount = 25000");
        insertItem(*m_database, 2, "TEA", "Iced tea");
        run("UPDATE item SET item_type = 2, harga_jual_lokal_amount = 5000 WHERE id = 2");
    }

private slots:
    void aSaleIsKeyedInAndPaidByTheKeyboardAlone()
    {
        insertSale(*m_database, {"OLD", "TRF", 100, 100, 0, 1, QDate::currentDate()});
        run("UPDATE member SET discount_percentage = 10, expired_date = current_date");
        show();
        m_people->expect<DialogFastFood>([this](DialogFastFood* form) {
            QCOMPARE(form->windowTitle(), QString("Fast Food Form"));
            QCOMPARE(form->focusWidget()->objectName(), QString("btnAdd"));
            QCOMPARE(shown(form, "txtCashAccount"), QString("1010"));
            QCOMPARE(form->findChild<QDateEdit*>("datePay")->date(), QDate::currentDate());
            QCOMPARE(labelled(form, "lblInvoiceTotal"), QString("Total Invoice :"));
            typeInto(form, "txtEmployee", "E1");
            typeInto(form, "txtMember", "M1");
            typeInto(form, "txtNamaPelanggan", QString(60, 'n'));
            keyInTheFood(form, [](DialogFastFood* same) {
                // After the last item, the focus is on the paid amount.
                QCOMPARE(same->focusWidget()->objectName(), QString("txtPaid"));
                QCOMPARE(shown(same, "txtGrandTotal"), QString("55.000,00"));
                QCOMPARE(shown(same, "txtNetDue"), QString("-55.000,00"));
                const QAbstractItemModel* lines = same->findChild<QTableView*>("tblMenu")->model();
                QCOMPARE(lines->index(1, TableModelFastFoodDetail::Status).data().toString(), QString("None"));
                QTest::keyClick(same, Qt::Key_F9);
                QTest::keyClicks(same->focusWidget(), "60000");
                QCOMPARE(shown(same, "txtNetDue"), QString("5.000,00"));
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        m_people->answer(QMessageBox::Yes);
        press(Qt::Key_F12);
        QTRY_COMPARE(slips().size(), 1);
        QVERIFY(m_people->finished());
        QCOMPARE(m_people->texts(), QStringList(printQuestion));
        QCOMPARE(m_people->lastTitle(), QString("Question"));
        // The new sale is the first row; the next one needs one key.
        QTRY_COMPARE(column(Column::InvoiceNo), (QStringList{"TRF-0007", "OLD"}));
        QCOMPARE(column(Column::Menu).first(), QString("Iced tea, Rice"));
        QCOMPARE(column(Column::Waitress).first(), QString("Ann"));
        QCOMPARE(column(Column::Status).first(), QString("Fully Paid"));
        QCOMPARE(label("lblCount"), QString("2 Items"));
        QCOMPARE(m_page->focusWidget(), m_grid);
        QVERIFY(stored("invoice_type, member_id, employee_id, acct_code").endsWith(",TRF 1 1 1010"));
        QVERIFY(stored("pemesan").endsWith(',' + QString(50, 'n')));
        QVERIFY(stored("member_id, employee_id, pemesan", "invoice_fast_food").endsWith(",1 1 " + QString(60, 'n')));
        QCOMPARE(count("makan_ditempat"), 0);
    }

    void theMoneyDecidesWhereTheSaleStands_data()
    {
        const auto row = addColumns<QString, QString, QString, QString>("paid", "credit", "figures", "change");
        row("nothing paid", "", "", "2 0 0 -55000", "Less : Rp55.000");
        row("a part", "20000", "", "3 20000 0 -35000", "Less : Rp35.000");
        row("the sum", "55000", "", "1 55000 0 0", "Change : Rp0");
        row("a larger note", "100000", "", "1 100000 0 45000", "Change : Rp45.000");
        row("on credit", "", "55000", "1 0 55000 0", "Change : Rp0");
    }
    void theMoneyDecidesWhereTheSaleStands()
    {
        FETCH(QString, paid, credit, figures, change);
        show();
        const auto* shownChange = m_page->findChild<QLabel*>("lblChange");
        QVERIFY(!shownChange->isVisible());
        m_people->answer(QMessageBox::No);
        sell([&](DialogFastFood* form) {
            QTest::keyClicks(form->focusWidget(), paid);
            QTest::keyClick(form, Qt::Key_F10);
            QTest::keyClicks(form->focusWidget(), credit);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        });
        QTRY_COMPARE(column(Column::InvoiceNo), QStringList("TRF-0007"));
        // The counter stores the figure that it shows: what is short is negative.
        QCOMPARE(stored("status, amount_paid_amount, other_payment_amount, net_due_amount"), figures);
        QCOMPARE(slips(), QStringList());
        // The change is still shown after the form has closed.
        QVERIFY(shownChange->isVisible());
        QCOMPARE(shownChange->text(), change);
        m_people->expect<DialogFastFood>([shownChange](DialogFastFood* form) {
            QVERIFY(!shownChange->isVisible());
            QTest::keyClick(form, Qt::Key_Escape);
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
    }

    void aSaveThatFailsKeepsWhatWasTyped()
    {
        run("UPDATE keytable SET key_name = 'gone' WHERE key_name = 'TRF'");
        show();
        sell([this](DialogFastFood* form) {
            QTest::keyClicks(form->focusWidget(), "60000");
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QVERIFY(form->isVisible());
            QCOMPARE(shown(form, "txtPaid"), QString("60.000,00"));
            QCOMPARE(form->findChild<QTableView*>("tblMenu")->model()->rowCount(), 2);
            QCOMPARE(stored("id") + stored("id", "invoice_fast_food") + stored("id", "invoice_detail"), QString());
            run("UPDATE keytable SET key_name = 'TRF' WHERE key_name = 'gone'");
            m_people->answer(QMessageBox::No);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        });
        QTRY_COMPARE(column(Column::InvoiceNo), QStringList("TRF-0007"));
        QCOMPARE(m_people->boxes().size(), 2);
        QCOMPARE(m_people->boxes().first().title, QString("Error"));
        QVERIFY2(m_people->boxes().first().text.startsWith("error: insert fast food invoice failed"),
                 qPrintable(m_people->boxes().first().text));
        QCOMPARE(stored("qty", "invoice_detail"), QString("1,2"));
    }

    void anEditKeepsTheNumberAndReplacesTheLines()
    {
        insertSale(*m_database, {"F1", "TRF", 100, 40, 0, 3, QDate::currentDate(), "", 1, 1, 1, 1});
        run("UPDATE invoice_fast_food SET pemesan = 'Bob'");
        show();
        QCOMPARE(column(Column::Guest), QStringList("Bob"));
        m_people->expect<DialogFastFood>([this](DialogFastFood* form) {
            QCOMPARE(shown(form, "txtKode"), QString("F1"));
            QCOMPARE(shown(form, "txtMember") + shown(form, "txtAgent") + shown(form, "txtEmployee"),
                     QString("M1A1E1"));
            QCOMPARE(shown(form, "txtNamaPelanggan"), QString("Bob"));
            QCOMPARE(shown(form, "txtPaid"), QString("40,00"));
            QVERIFY(!form->findChild<QDateEdit*>("datePay")->isEnabled());
            form->findChild<QLineEdit*>("txtMember")->clear();
            expectRound<DialogSelectFastFoodMenu>("TEA", "2", form, [](DialogFastFood* same) {
                QCOMPARE(shown(same, "txtGrandTotal"), QString("10.100,00"));
                QTest::keyClicks(same->focusWidget(), "10100");
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        press(Qt::Key_F2);
        QTRY_COMPARE(column(Column::Status), QStringList("Fully Paid"));
        // A bill that was printed once is not asked for again.
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(stored("no, version, net_due_amount, member_id"), QString("F1 2 0"));
        QCOMPARE(stored("version, agent_id, pemesan, member_id", "invoice_fast_food"), QString("2 1 Bob"));
        QCOMPARE(stored("qty, total_amount", "invoice_detail"), QString("1 100,2 10000"));
        QVERIFY(m_database->value("SELECT min(id) FROM invoice_detail").toInt() > 1);
    }

    void theListIsNarrowedByDayStatusAndWaitress()
    {
        const QDate today = QDate::currentDate();
        insertSale(*m_database, {"YESTERDAY", "TRF", 100, 100, 0, 1, today.addDays(-1)});
        insertSale(*m_database, {"FULL", "TRF", 100, 100, 0, 1, today, "", 1, 0, 1});
        insertSale(*m_database, {"PART", "TRF", 100, 40, 0, 3, today});
        insertSale(*m_database, {"NONE", "TRF", 100, 0, 0, 2, today});
        insertSale(*m_database, {"DINE", "TRD", 100, 0, 0, 2, today});
        show();
        QCOMPARE(column(Column::InvoiceNo), (QStringList{"NONE", "PART", "FULL"}));
        QCOMPARE(column(Column::AmountPaid), (QStringList{"Rp0,00", "Rp40,00", "Rp100,00"}));
        auto* status = m_page->findChild<QComboBox*>("ddlStatus");
        const auto found = [&](int row, const QString& waitress) {
            status->setCurrentIndex(row);
            m_page->findChild<QLineEdit*>("txtEmployee")->setText(waitress);
            click(m_page.get(), "btnSearch");
            return column(Column::InvoiceNo).join(' ');
        };
        QCOMPARE(found(1, ""), QString("FULL"));
        QCOMPARE(found(2, ""), QString("PART"));
        QCOMPARE(found(3, ""), QString("NONE"));
        QCOMPARE(found(0, "e1"), QString("FULL"));
        QCOMPARE(found(0, "E"), QString());
        QCOMPARE(found(3, "E1"), QString());
        m_page->findChild<QDateEdit*>("dateFrom")->setDate(today.addDays(-1));
        const StatementCount statements;
        QCOMPARE(found(0, ""), QString("NONE PART FULL YESTERDAY"));
        QVERIFY2(statements.count() <= 3, qPrintable(QString::number(statements.count())));
        QCOMPARE(m_people->texts(), QStringList());
    }

private:
    using FormStep = std::function<void(DialogFastFood*)>;

    void press(Qt::Key key)
    {
        bringToFront(m_page.get());
        m_grid->selectRow(0);
        QTest::keyClick(m_grid, key);
    }

    /** Types one tea and two rice in the form, cancels the pickers and continues with the form. */
    void keyInTheFood(DialogFastFood* form, const FormStep& then)
    {
        expectRound<DialogSelectFastFoodMenu>("tea", "1", form, [this, then](DialogFastFood* same) {
            expectRound<DialogSelectFastFoodInventory>("rice", "2", same, then);
        });
    }

    template <class Picker>
    void expectRound(const QString& code, const QString& qty, DialogFastFood* form, const FormStep& then)
    {
        m_people->expect<Picker>([code, qty](Picker* picker) { pick(picker, code, qty); });
        m_people->expect<Picker>([this, then](Picker* picker) {
            m_people->expect<DialogFastFood>([then](DialogFastFood* same) {
                bringToFront(same);
                then(same);
            });
            QTest::keyClick(picker, Qt::Key_Escape);
        });
        bringToFront(form);
        QTest::keyClick(form->focusWidget(),
                        std::is_same<Picker, DialogSelectFastFoodMenu>::value ? Qt::Key_F12 : Qt::Key_F11);
    }

    /** Takes a sale from the page up to the money. */
    void sell(const FormStep& pay)
    {
        m_people->expect<DialogFastFood>([this, pay](DialogFastFood* form) { keyInTheFood(form, pay); });
        press(Qt::Key_F12);
    }

    QString stored(const QString& columns, const QString& table = "invoice")
    {
        return value("SELECT string_agg(concat_ws(' ', " + columns + "), ',' ORDER BY id) FROM " + table);
    }
};

QTEST_MAIN(TestFastFood)
#include "tst_fast_food.moc"
