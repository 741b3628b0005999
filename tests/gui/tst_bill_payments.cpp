#include "pos/purchasing/payment/DialogPayment.h"
#include "pos/purchasing/payment/DialogPaymentInvoice.h"
#include "pos/purchasing/payment/TabPayment.h"
#include "pos/purchasing/payment/TabPaymentExpenses.h"
#include "pos/purchasing/payment/TabPaymentInvoice.h"
#include "support/DatabaseTest.h"

/** The owner at the page of bills to pay, with keyboard and mouse. */
class TestBillPayments : public PageTest<TabPayment>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        buy("NB-1", 500, 500);
        buy("NB-2", 400, 300);
    }

private slots:
    void aSupplierIsPaidAllThatIsOpen()
    {
        show();
        onForm("btnAdd", [](DialogPayment* form) {
            enter(form, "txtSupplier", "s1");
            QCOMPARE(shown(form, "txtSupplier"), QString("S1"));
            QCOMPARE(shown(form, "txtSupplierName"), QString("Market"));
            QCOMPARE(cells(purchases(form), 0).first(), QString("NB-1"));
            QCOMPARE(figures(form), QString("500 0, 300 0"));
            QTest::keyClick(gridOf(purchases(form)), Qt::Key_F9);
            QTRY_COMPARE(figures(form), QString("0 500, 0 300"));
            QCOMPARE(shown(form, "txtGrandTotal"), QString("800,00"));
            typeInto(form, "txtCashAccount", "cas");
            takeFirst();
            QCOMPARE(labelled(form, "lblCashAccount"), QString("Cash"));
            auto* types = form->findChild<QComboBox*>("ddlPaymentType");
            QTRY_VERIFY(types->hasFocus());
            QTest::keyClick(types, Qt::Key_End);
            QCOMPARE(types->currentText(), QString("Checks"));
            enter(form, "txtCekNo", "77");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(cells(m_page.get(), 0).value(0), QString("TPH-0007"));
        QCOMPARE(cells(m_page.get(), 0).mid(2), (QStringList{"Market", "Rp800,00"}));
        QCOMPARE(value("SELECT concat_ws(' ', payment_type, check_no, bank_id) FROM payment"), QString("3 77 1"));
        QCOMPARE(purchasesStand(), QString("500 0 1, 300 0 1"));
    }

    void anotherSuppliersCodeAndF2InABurst()
    {
        insert("supplier", "id=2, kode='S2', nama='Dairy'");
        buy("NB-3", 700, 700);
        run("UPDATE acquisition SET supplier_id = 2 WHERE no = 'NB-3'");
        show();
        onForm("btnAdd", [this](DialogPayment* form) {
            enter(form, "txtSupplier", "S1");
            choose(purchases(form), 1);
            typeInto(form, "txtSupplier", "S2");
            m_people->expect<DialogPaymentInvoice>([](DialogPaymentInvoice* one) {
                typeInto(one, "txtPaid", "70");
                confirm(one, "txtPaid");
            });
            QTest::keyClick(box(form, "txtSupplier"), Qt::Key_F2);
            // F2 must not open a line of the former supplier.
            QCOMPARE(shown(form, "txtSupplierName"), QString("Dairy"));
            if (!m_people->finished()) {
                choose(purchases(form), 0);
                click(form, "btnPay");
            }
            QCOMPARE(figures(form), QString("630 70"));
            enter(form, "txtCashAccount", "1-100");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(purchasesStand(), QString("0 500 2, 0 300 3, 70 630 3"));
    }

    void aFormMayGoWithACodeThatNobodyHasRead()
    {
        auto form = std::make_unique<DialogPayment>();
        showForm(form.get());
        typeInto(form.get(), "txtSupplier", "S1");
        form.reset();
    }

    void whatCanBePaidOfOnePurchase_data()
    {
        const auto row = addColumns<QString, QStringList, QString>("typed", "told", "figures");
        const QStringList invalid("Enter a valid value for the amount paid\r\n");
        row("nothing", "0", {}, "500 0, 300 0");
        row("less than nothing", "-50", invalid, "500 0, 300 0");
        row("more than money can hold", "99999999999",
            QStringList("This amount is too large. Please check the figures.\r\n"), "500 0, 300 0");
    }
    void whatCanBePaidOfOnePurchase()
    {
        QFETCH(QString, typed);
        show();
        onForm("btnAdd", [this, typed](DialogPayment* form) {
            enter(form, "txtSupplier", "S1");
            m_people->expect<DialogPayment>([](DialogPayment* again) {
                QTEST(figures(again), "figures");
                giveUp(again);
            });
            pay(form, 0, typed);
        });
        QTEST(m_people->texts(), "told");
    }

    void whatIsMissingIsTold_data()
    {
        const auto row = addColumns<QString, QString, int, QString>("supplier", "account", "qty", "told");
        const QString nothing = "Enter the amount paid for one or more purchase invoices, or add an item";
        row("a supplier", "", "", -1, "Select a supplier");
        row("anything to pay", "S1", "", -1, nothing);
        row("an account that nobody knows", "S1", "9", -1, nothing + "\r\nPlease select a valid Cash Accounts");
        row("a quantity", "S1", "1-100", 0, "The quantity received for this item: Rice should be more than zero");
    }
    void whatIsMissingIsTold()
    {
        FETCH(QString, supplier, account, told);
        QFETCH(int, qty);
        if (qty >= 0)
            insertPayment(qty);
        show();
        choose(m_page.get(), 0);
        onForm(qty < 0 ? "btnAdd" : "btnEdit", [&](DialogPayment* form) {
            enter(form, "txtSupplier", supplier);
            enter(form, "txtCashAccount", account);
            confirm(form, "txtRefNo");
            QVERIFY(form->isVisible());
            QCOMPARE(m_people->texts(), QStringList(told + "\r\n"));
            giveUp(form);
        });
        QCOMPARE(value("SELECT count(*) FROM payment"), QString::number(qty < 0 ? 0 : 1));
    }

    void expensesAreKeyedInOneAfterTheOther()
    {
        show();
        const auto key = [](const QString& qty) {
            return [qty](DialogPaymentExpenses* line) {
                enter(line, "txtCode", "rice");
                enter(line, "txtQty", qty);
                confirm(line, "txtDiscount");
            };
        };
        onForm("btnAdd", [this, key](DialogPayment* form) {
            enter(form, "txtSupplier", "S1");
            QTest::keyClick(form, Qt::Key_F4);
            QTRY_VERIFY(items(form)->isVisible());
            m_people->expect<DialogPaymentExpenses>(key("3"));
            m_people->expect<DialogPaymentExpenses>(key("5"));
            m_people->answer(QMessageBox::Yes);
            m_people->expect<DialogPaymentExpenses>([this](DialogPaymentExpenses* line) {
                m_people->expect<DialogPayment>([](DialogPayment* again) {
                    QCOMPARE(cells(items(again), 0),
                             (QStringList{"RICE", "Rice", "Kilogram", "Rp10,00", "Rp0,00", "Rp50,00"}));
                    QCOMPARE(shown(again, "txtGrandTotal"), QString("50,00"));
                    // The account is optional.
                    confirm(again, "txtRefNo");
                });
                giveUp(line);
            });
            click(items(form), "btnAdd");
        });
        QTRY_COMPARE(cells(m_page.get(), 0).value(3), QString("Rp50,00"));
        QCOMPARE(m_people->texts(),
                 QStringList("This item: Rice is already in the list. Do you want to update it with this data?"));
        QCOMPARE(value("SELECT concat_ws(' ', qty, amount_amount, (SELECT count(*) FROM payment_invoice), "
                       "(SELECT count(*) FROM item_history)) FROM payment_expense"),
                 QString("5 50 0 0"));
        QCOMPARE(purchasesStand(), QString("0 500 2, 0 300 3"));
    }

    void anEditPutsItsLinesInThePlaceOfTheOpenOnes()
    {
        insertPayment();
        show();
        choose(m_page.get(), 0);
        onForm("btnEdit", [this](DialogPayment* form) {
            QCOMPARE(shown(form, "txtKode"), QString("TPH-1"));
            QCOMPARE(figures(form), QString("200 300, 300 0"));
            pay(form, 0, "0");
            pay(form, 1, "250");
            QCOMPARE(figures(form), QString("500 0, 50 250"));
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(cells(m_page.get(), 0).value(3), QString("Rp250,00"));
        QCOMPARE(value("SELECT string_agg(concat_ws(' ', acquisition_id, amount_paid_amount, amount_due_amount), ', ') "
                       "FROM payment_invoice"),
                 QString("2 250 50"));
        // A purchase that was removed from the payment is due again.
        QCOMPARE(purchasesStand(), QString("0 500 2, 250 50 3"));
    }

    void aPurchaseDeletedMeanwhileLeavesTheFormAsItIs()
    {
        show();
        onForm("btnAdd", [this](DialogPayment* form) {
            enter(form, "txtSupplier", "S1");
            click(form, "btnPayAll");
            run("DELETE FROM acquisition WHERE id = 2");
            m_people->answer(QMessageBox::Yes);
            confirm(form, "txtRefNo");
            QVERIFY(form->isVisible());
            QVERIFY2(m_people->lastText().contains("error: insert payment detail:invoice failed."),
                     qPrintable(m_people->lastText()));
            QCOMPARE(figures(form), QString("0 500, 0 300"));
            // Without it the rest is saved, with the number of the failed save.
            pay(form, 1, "0");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(cells(m_page.get(), 0).value(0), QString("TPH-0007"));
        QCOMPARE(purchasesStand(), QString("500 0 1"));
    }

    void aPurchasePaidByAnotherMeanwhileIsNotPaidTwice()
    {
        show();
        onForm("btnAdd", [this](DialogPayment* form) {
            enter(form, "txtSupplier", "S1");
            click(form, "btnPayAll");
            insertPayment();
            confirm(form, "txtRefNo");
            QVERIFY(form->isVisible());
            QCOMPARE(m_people->texts(), QStringList("Purchase invoice no: NB-1 was paid or changed by somebody else "
                                                    "meanwhile. Do you want to pay it all the same?"));
            QCOMPARE(figures(form), QString("200 0, 300 0"));
            click(form, "btnPayAll");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(purchasesStand(), QString("500 0 1, 300 0 1"));
    }

private:
    static QWidget* purchases(const QWidget* form) { return form->findChild<TabPaymentInvoice*>(); }
    static QWidget* items(const QWidget* form) { return form->findChild<TabPaymentExpenses*>(); }
    /** Pays the amount of the purchase. */
    void pay(DialogPayment* form, int row, const QString& amount)
    {
        choose(purchases(form), row);
        m_people->expect<DialogPaymentInvoice>([amount](DialogPaymentInvoice* one) {
            typeInto(one, "txtPaid", amount);
            confirm(one, "txtPaid");
            if (one->isVisible())
                giveUp(one);
        });
        click(form, "btnPay");
    }

    /** What the form shows of all purchases: due and paid. */
    static QString figures(const QWidget* form)
    {
        QStringList figures;
        for (int row = 0; row < rowsOf(purchases(form)); ++row)
            figures.append(cells(purchases(form), row).mid(3).join(' ').remove("Rp").remove(",00"));
        return figures.join(", ");
    }

    void buy(const QString& no, int total, int due)
    {
        insert(
            "acquisition",
            QString("no=%1, supplier_id=1, grandtotal_amount=%2, amount_paid_amount=%3, net_due_amount=%4, status=%5")
                .arg('\'' + no + '\'')
                .arg(total)
                .arg(total - due)
                .arg(due)
                .arg(total == due ? "2" : "3"));
    }

    /** Inserts a payment of 300 for the first purchase, with one item if its quantity is given. */
    void insertPayment(int qty = -1)
    {
        insert("payment", "no='TPH-1', bank_id=1, grandtotal_amount=300");
        insert("payment_invoice", "payment_id=(SELECT max(id) FROM payment), amount_paid_amount=300");
        run("UPDATE acquisition SET other_payment_amount = 300, net_due_amount = 200, status = 3 WHERE id = 1");
        if (qty >= 0)
            insert("payment_expense", QString("qty=%1, unit_price_amount=10").arg(qty));
    }

    QString purchasesStand()
    {
        return value("SELECT string_agg(concat_ws(' ', other_payment_amount, net_due_amount, status), ', ' ORDER BY "
                     "id) FROM acquisition");
    }
};

QTEST_MAIN(TestBillPayments)
#include "tst_bill_payments.moc"
