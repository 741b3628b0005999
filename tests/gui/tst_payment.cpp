#include "support/DatabaseTest.h"
#include "support/SlowNeighbour.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogSelectSplitInvoice.h"
#include "zavel/service/BusinessPenjualan.h"

namespace
{
const char* const printQuestion = "Do you want to print this invoice?";
const char* const doneQuestion = "Are you done with this table: Window ?";
} // namespace

/** The cashier at the payment form, with the keyboard, on an order of 1.000 rupiah. */
class TestPayment : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        insert("bank", "kode='1010', nama='Cash on Hand', active=true");
        run("TRUNCATE appconfig");
        run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('cashier_printer', true, "
            "'{\"printer_name\":\"Kasir\",\"no_of_copy\":\"1\",\"column_paper\":\"40\"}', 1)");
        m_order = insertDineOrder(*m_database, {{2, 300}, {1, 400}});
    }
    void tidy() override { m_form.reset(); }

private slots:
    void theFormOpensReadyForTheMoney()
    {
        openForm();
        QCOMPARE(m_form->windowTitle(), QString("Customer Payment Form"));
        QCOMPARE(shown("txtKode"), QString());
        QCOMPARE(shown("txtMeja"), QString("Window"));
        QCOMPARE(shown("txtNamaPelanggan"), QString("Mary"));
        QCOMPARE(shown("txtCashAccount"), QString("1010"));
        QCOMPARE(labelled(m_form.get(), "lblCashAccount"), QString("Cash on Hand"));
        QCOMPARE(m_form->findChild<QDateEdit*>("datePay")->date(), QDate(2026, 3, 1));
        QCOMPARE(shown("txtSubTotal"), QString("1.000,00"));
        QCOMPARE(shown("txtGrandTotal"), QString("1.000,00"));
        QCOMPARE(shown("txtGrandTotal_2"), QString("1.000,00"));
        QCOMPARE(shown("txtNetDue"), QString("-1.000,00"));
        QCOMPARE(labelled(m_form.get(), "lblNetDue"), QString("Less :"));
        QCOMPARE(labelled(m_form.get(), "lblCount"), QString("2 Items"));
        const QAbstractItemModel* menu = m_form->findChild<QTableView*>("tblDetail")->model();
        QCOMPARE(headersOf(*menu), (QStringList{"Code", "Name", "Qty", "Unit", "Unit Price", "Amount"}));
        QCOMPARE(cells(*menu, 1), (QStringList{"RICE", "Rice", "1", "Kilogram", "Rp400,00", "Rp400,00"}));
    }

    void whatIsTypedCountsWhenTheFocusLeaves_data()
    {
        const auto row = addColumns<QString, QString, QString, QString, QString>("typedInto", "typed", "follower",
                                                                                 "follows", "grandTotal");
        row("percent of discount", "txtDiscPerc", "10", "txtDiscount", "100,00", "900,00");
        row("discount", "txtDiscount", "333", "txtDiscPerc", "33,3", "667,00");
        row("percent of tax", "txtTaxPerc", "11", "txtTax", "110,00", "1.110,00");
        row("tax", "txtTax", "55", "txtTaxPerc", "5,5", "1.055,00");
        row("percent of service", "txtServicePerc", "2,55", "txtService", "26,00", "1.026,00");
        row("service", "txtService", "1.500", "txtServicePerc", "150", "2.500,00");
    }
    void whatIsTypedCountsWhenTheFocusLeaves()
    {
        FETCH(QString, typedInto, typed, follower, follows, grandTotal);
        openForm();
        const QString before = shown(follower);
        type(typedInto, typed);
        QCOMPARE(shown(typedInto), typed);
        QCOMPARE(shown(follower), before);
        QCOMPARE(shown("txtGrandTotal"), QString("1.000,00"));
        press(Qt::Key_F9);
        QCOMPARE(shown(follower), follows);
        QCOMPARE(shown("txtGrandTotal"), grandTotal);
        QCOMPARE(shown("txtGrandTotal_2"), grandTotal);
        QCOMPARE(shown("txtNetDue"), '-' + grandTotal);
    }

    void changeIsToldWhileTheMoneyIsCounted_data()
    {
        const auto row = addColumns<QString, QString, QString, QString>("typedInto", "typed", "label", "netDue");
        row("too much", "txtPaid", "1000", "Change :", "100,00");
        row("too little", "txtPaid", "800", "Less :", "-100,00");
        row("exact", "txtPaid", "900", "Change :", "0,00");
        row("on credit", "txtCredit", "950", "Change :", "50,00");
        row("not a number", "txtPaid", "x", "Less :", "-900,00");
    }
    void changeIsToldWhileTheMoneyIsCounted()
    {
        FETCH(QString, typedInto, typed);
        openForm();
        enter("txtDiscPerc", "10");
        type(typedInto, typed);
        QTEST(labelled(m_form.get(), "lblNetDue"), "label");
        QTEST(shown("txtNetDue"), "netDue");
        // The field with the cursor keeps the cashier's input.
        QCOMPARE(shown(typedInto), typed);
    }

    void theKeysLeadToTheBoxes()
    {
        openForm();
        press(Qt::Key_F10);
        QVERIFY(box("txtCredit")->hasFocus());
        press(Qt::Key_F3);
        QVERIFY(m_form->findChild<QTableView*>("tblDetail")->hasFocus());
        press(Qt::Key_F9);
        QVERIFY(box("txtPaid")->hasFocus());
        // Typing again replaces the first amount.
        QTest::keyClicks(box("txtPaid"), "500");
        press(Qt::Key_F10);
        press(Qt::Key_F9);
        QTest::keyClicks(box("txtPaid"), "700");
        QCOMPARE(shown("txtNetDue"), QString("-300,00"));
    }

    void aMembersDiscountHoldsToItsLastDay_data()
    {
        const auto row = addColumns<QString, QString, QString>("expires", "percent", "grandTotal");
        const auto inDays = [](int days) { return QDate::currentDate().addDays(days).toString("''yyyy-MM-dd''"); };
        row("expired yesterday", inDays(-1), "0", "1.000,00");
        row("expires today", inDays(0), "15", "850,00");
        row("expires next year", inDays(365), "15", "850,00");
        row("without a date", "NULL", "0", "1.000,00");
    }
    void aMembersDiscountHoldsToItsLastDay()
    {
        QFETCH(QString, expires);
        run("UPDATE member SET discount_percentage = 15, expired_date = " + expires);
        run("UPDATE makan_ditempat SET member_id = 1");
        openForm();
        QCOMPARE(shown("txtMember"), QString("M1"));
        QCOMPARE(shown("txtNamaPelanggan"), QString("Guest"));
        QTEST(shown("txtDiscPerc"), "percent");
        // The amount is updated when the focus passes through the percent box.
        QCOMPARE(shown("txtGrandTotal"), QString("1.000,00"));
        box("txtDiscPerc")->setFocus(Qt::TabFocusReason);
        press(Qt::Key_Tab);
        QTEST(shown("txtGrandTotal"), "grandTotal");
    }

    void aMembersCodeMeansTheSameAtEverySpeed_data()
    {
        const auto row = addColumns<bool, int>("waitsForTheList", "then");
        row("a card scanner, and Return", false, Qt::Key_Return);
        row("a card scanner, and straight to the money", false, Qt::Key_F9);
        row("a slow typist, and Return", true, Qt::Key_Return);
    }
    void aMembersCodeMeansTheSameAtEverySpeed()
    {
        QFETCH(bool, waitsForTheList);
        QFETCH(int, then);
        run("UPDATE member SET discount_percentage = 15, expired_date = current_date + 1");
        openForm();
        type("txtMember", "m1");
        if (waitsForTheList) {
            takeFirst();
        } else {
            QTest::keyClick(box("txtMember"), Qt::Key_Return);
        }
        QCOMPARE(invoices(), 0);
        QVERIFY(m_people->texts().isEmpty());
        QCOMPARE(shown("txtNamaPelanggan"), QString("Guest"));
        press(Qt::Key(then));
        if (then == Qt::Key_F9) {
            QCOMPARE(shown("txtDiscount"), QString("150,00"));
            save();
        }
        QTRY_COMPARE(invoices(), 1);
        QCOMPARE(invoice("member_id, disc_perc, discount_amount, grandtotal_amount"),
                 (QStringList{"1", "15", "150", "850"}));
        // Who pays later is found by the order's member.
        QCOMPARE(value("SELECT member_id FROM makan_ditempat"), QString("1"));
    }

    void anOrderIsBilledOnce_data()
    {
        const auto row = addColumns<bool, bool>("atTheSameMoment", "opensIt");
        row("a moment earlier, left alone", false, false);
        row("a moment earlier, opened", false, true);
        row("at the same moment, opened", true, true);
    }
    void anOrderIsBilledOnce()
    {
        FETCH(bool, atTheSameMoment, opensIt);
        openForm();
        enter("txtPaid", "500");
        // The other cashier's bill: of the same lines, by the same user.
        const QString order = QString::number(m_order);
        insert("invoice", "no='TRD-X', invoice_type='TRD', status=1, sub_total_amount=1000, grandtotal_amount=1000, "
                          "amount_paid_amount=1000, tax_perc=0, service_perc=0, acct_code='1010', createdby=1, "
                          "createdtime='2026-03-01 20:15'");
        const QStringList bill{"SELECT 1 FROM makan_ditempat WHERE id = " + order + " FOR UPDATE",
                               "INSERT INTO invoice_makan_ditempat (invoice_id, makan_ditempat_id, version) SELECT "
                               "max(id), " +
                                   order + ", 1 FROM invoice"};
        std::unique_ptr<SlowNeighbour> neighbour;
        if (atTheSameMoment) {
            neighbour = std::make_unique<SlowNeighbour>(*m_database, bill);
        } else {
            for (const QString& statement : bill)
                run(statement);
        }
        m_people->answer(opensIt ? QMessageBox::Yes : QMessageBox::No);
        save();
        QTRY_COMPARE(m_people->texts().size(), 1);
        QCOMPARE(m_people->lastText(),
                 QString("This order was billed meanwhile: TRD-X of Rp1.000, by admin at 20:15. Nothing was saved.\r\n"
                         "Do you want to open that bill?"));
        QCOMPARE(invoices(), 1);
        QCOMPARE(shown("txtKode"), opensIt ? QString("TRD-X") : QString());
        QCOMPARE(shown("txtPaid"), opensIt ? QString("1.000,00") : QString("500,00"));
    }

    void whatChangesAfterTheBillIsAskedFor_data()
    {
        const auto row = addColumns<int, int, QString, bool>("quantity", "answer", "bills", "isSettled");
        // Of the first dish two are billed, at 300 each; there are 10 % tax.
        row("one more, added to the bill", 3, QMessageBox::Yes, "1430", true);
        row("one more, on a second bill", 3, QMessageBox::Save, "1100 300", true);
        row("one more, left alone", 3, QMessageBox::No, "1100", false);
        row("one taken back, off the bill", 1, QMessageBox::Yes, "770", true);
        row("one taken back, left alone", 1, QMessageBox::No, "1100", false);
        row("all taken back, off the bill", 0, QMessageBox::Yes, "440", true);
    }
    void whatChangesAfterTheBillIsAskedFor()
    {
        FETCH(int, quantity, answer);
        QFETCH(QString, bills);
        QFETCH(bool, isSettled);
        openForm();
        enter("txtTaxPerc", "10");
        type("txtPaid", "1100");
        save();
        QTRY_COMPARE(m_people->texts().size(), 2);
        // A waiter changes the order at the table, after the guests had their bill.
        run(quantity > 0 ? QString("UPDATE makan_ditempat_detail SET qty = %1 WHERE qty = 2").arg(quantity)
                         : QString("DELETE FROM makan_ditempat_detail WHERE qty = 2"));
        m_people->answer(QMessageBox::Yes);
        click("btnFinish");
        const QString difference = quantity > 2   ? "Ordered, but on no bill: 1 Rice (Rp300)"
                                   : quantity > 0 ? "On the bill, but taken back: 1 Rice (Rp300)"
                                                  : "On the bill, but taken back: 2 Rice (Rp600)";
        QTRY_COMPARE(m_people->lastText(), difference + "\r\nDo you want to end this order all the same?");
        QCOMPARE(orderStatus(), int(EntityOrder::DONE));

        run("UPDATE makan_ditempat SET status = 1");
        m_people->clear();
        m_people->answer(QMessageBox::StandardButton(answer));
        openForm();
        QCOMPARE(m_people->texts(), QStringList{"This order has changed since it was billed.\r\n" + difference});
        save();
        QTRY_COMPARE(value("SELECT string_agg(grandtotal_amount::text, ' ' ORDER BY id) FROM invoice"), bills);
        m_people->clear();
        click("btnFinish");
        QCOMPARE(m_people->texts().isEmpty(), isSettled);
        QCOMPARE(orderStatus() == EntityOrder::DONE, isSettled);
    }

    void anAmountOffStaysWhenALargeBillGrows()
    {
        // A percent of three decimals is not fine enough for 333 of ten million.
        run("UPDATE makan_ditempat_detail SET price_each_amount = price_each_amount * 10000, "
            "total_amount = total_amount * 10000");
        openForm();
        enter("txtDiscount", "333");
        enter("txtTaxPerc", "10");
        save();
        QTRY_COMPARE(invoices(), 1);
        run("UPDATE makan_ditempat_detail SET qty = 3 WHERE qty = 2");
        m_people->answer(QMessageBox::Yes);
        openForm();
        save();
        QTRY_COMPARE(invoice("sub_total_amount, discount_amount, tax_amount, grandtotal_amount"),
                     (QStringList{"13000000", "333", "1300000", "14299667"}));
    }

    void pressedTwiceDoesOneThing_data()
    {
        const auto row = addColumns<QString, bool>("button", "byFinger");
        row("Print by finger", "btnPrintBill", true);
        row("Print by its key", "btnPrintBill", false);
        row("OK by finger", "", true);
        row("OK by Return", "", false);
    }
    void pressedTwiceDoesOneThing()
    {
        QFETCH(QString, button);
        QFETCH(bool, byFinger);
        openForm();
        enter("txtPaid", "1000");
        box("txtPaid")->setFocus();
        bringToFront(m_form.get());
        // Message boxes are also answered with keys, after both presses.
        m_people.reset();
        QTimer answers;
        connect(&answers, &QTimer::timeout, this, [] {
            if (::openForm())
                QTimer::singleShot(0, [] { strikeKey(Qt::Key_Escape); });
        });
        QTimer::singleShot(150, &answers, [&answers] { answers.start(10); });
        const QWidget* target = button.isEmpty() ? m_form->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)
                                                 : m_form->findChild<QPushButton*>(button);
        const QPoint place = target->mapTo(m_form.get(), target->rect().center());
        const auto press = [this, button, byFinger, place](int time) {
            if (byFinger)
                tap(m_form->windowHandle(), place, time);
            else if (button.isEmpty())
                strikeKey(Qt::Key_Return);
            else
                strikeKey(Qt::Key_P, {}, Qt::ControlModifier);
        };
        QTimer::singleShot(40, m_form.get(), [press] { press(100040); });
        press(100000);
        QTest::qWait(250);
        QCOMPARE(invoices(), 1);
        QCOMPARE(invoice("version"), QStringList("1"));
        QCOMPARE(slips().size(), button.isEmpty() ? 0 : 1);
    }

    void aWrongEntryIsTold_data()
    {
        const auto row = addColumns<QString, QString, QString>("typedInto", "typed", "told");
        const QString unknown = "There is no record with the code: %1\r\n";
        const QString tooLarge = "An amount is larger than an invoice can hold. Please check the figures.\r\n";
        row("no account", "txtCashAccount", "", "Please select a Cash Accounts\r\n");
        row("no such account", "txtCashAccount", "77", "Please select a valid Cash Accounts\r\n");
        row("no such member", "txtMember", "zz", unknown.arg("zz"));
        row("no such agent", "txtAgent", "zz", unknown.arg("zz"));
        row("no such waitress", "txtEmployee", "zz", unknown.arg("zz"));
        row("letters for money", "txtPaid", "9oo", "Please enter a number\r\n");
        row("an emptied box", "txtCredit", "", "Please enter a number\r\n");
        row("a line beyond it", "", "UPDATE makan_ditempat_detail SET qty = 8000000", tooLarge);
        row("nothing ordered", "", "DELETE FROM makan_ditempat_detail", "Add one or more menu\r\n");
    }
    void aWrongEntryIsTold()
    {
        FETCH(QString, typedInto, typed, told);
        if (typedInto.isEmpty())
            run(typed);
        openForm();
        if (!typedInto.isEmpty())
            type(typedInto, typed);
        save();
        QTRY_COMPARE(m_people->texts(), QStringList{told});
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(m_people->boxes().last().icon, QMessageBox::Critical);
        QCOMPARE(invoices(), 0);
        QVERIFY(m_form->isVisible());
    }

    void theMoneyDecidesWhereTheSaleStands_data()
    {
        const auto row = addColumns<QString, QString, QStringList, int>("paid", "credit", "stored", "status");
        row("nothing yet", "0", "0", {"2", "0", "0", "900"}, EntityOrder::UNPAID);
        row("a part", "400", "0", {"3", "400", "0", "500"}, EntityOrder::PARTIALY_PAID);
        row("exactly", "900", "0", {"1", "900", "0", "0"}, EntityOrder::PAID);
        row("with change", "1000", "0", {"1", "1000", "0", "-100"}, EntityOrder::PAID);
        row("all on credit", "0", "900", {"1", "0", "900", "0"}, EntityOrder::PAID);
    }
    void theMoneyDecidesWhereTheSaleStands()
    {
        FETCH(QString, paid, credit);
        QFETCH(int, status);
        openForm();
        enter("txtDiscPerc", "10");
        enter("txtPaid", paid);
        type("txtCredit", credit);
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::No);
        press(Qt::Key_Return);
        QStringList questions{printQuestion};
        if (status == EntityOrder::PAID)
            questions.append(doneQuestion);
        QTRY_COMPARE(m_people->texts(), questions);
        for (const SeenBox& seen : m_people->boxes())
            QCOMPARE(seen.title, QString("Question"));
        QTEST(invoice("status, amount_paid_amount, other_payment_amount, net_due_amount"), "stored");
        QCOMPARE(invoice("no, disc_perc, discount_amount, grandtotal_amount, acct_code, pemesan"),
                 (QStringList{"TRD-0007", "10", "100", "900", "1010", "Mary"}));
        QCOMPARE(orderStatus(), status);
        QVERIFY(m_form->isVisible());
        QCOMPARE(shown("txtKode"), QString("TRD-0007"));
        QVERIFY(!m_form->findChild<QDateEdit*>("datePay")->isEnabled());
        QVERIFY(slips().isEmpty());
    }

    void thePrintButtonSavesAndPrintsWithoutAsking()
    {
        openForm();
        // The shortcut works while a discount is being typed, and the discount counts.
        enter("txtPaid", "900");
        type("txtDiscount", "100");
        m_people->answer(QMessageBox::No);
        press(Qt::Key_P, Qt::ControlModifier);
        QTRY_COMPARE(m_people->texts(), QStringList{doneQuestion});
        QCOMPARE(slips().size(), 1);
        QCOMPARE(invoice("disc_perc, grandtotal_amount, net_due_amount"), (QStringList{"10", "900", "0"}));
        QVERIFY(slips().first().contains("TRD-0007"));

        // From now on the form prints with every save; the table is freed on request.
        m_people->answer(QMessageBox::Yes);
        save();
        QTRY_COMPARE(m_people->texts(), (QStringList{doneQuestion, doneQuestion}));
        QCOMPARE(slips().size(), 2);
        QCOMPARE(orderStatus(), int(EntityOrder::DONE));
        QVERIFY(m_form->isVisible());
    }

    void aPrinterThatIsNotThereCostsNoSale()
    {
        listPrinters("Dapur\n");
        openForm();
        type("txtPaid", "500");
        click("btnPrintBill");
        QTRY_VERIFY(m_people->texts().contains("Error Opening Printer:Kasir"));
        QCOMPARE(invoice("no, status"), (QStringList{"TRD-0007", "3"}));
        QCOMPARE(shown("txtKode"), QString("TRD-0007"));
        QCOMPARE(orderStatus(), int(EntityOrder::PARTIALY_PAID));
    }

    void doneNeedsASavedInvoice()
    {
        openForm();
        click("btnFinish");
        QTRY_COMPARE(m_people->texts(), QStringList{"Please save this invoice first"});
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(m_form->isVisible());
        QCOMPARE(orderStatus(), int(EntityOrder::WAITING_FOR_MENU));
        // Guests who leave without paying free the table as well.
        m_people->answer(QMessageBox::No);
        save();
        QTRY_COMPARE(orderStatus(), int(EntityOrder::UNPAID));
        click("btnFinish");
        QTRY_VERIFY(!m_form->isVisible());
        QCOMPARE(orderStatus(), int(EntityOrder::DONE));
    }

    void aStoredInvoiceOpensWithItsOwnDiscount()
    {
        run("UPDATE member SET discount_percentage = 15, expired_date = current_date + 1");
        run("UPDATE makan_ditempat SET member_id = 1");
        openForm();
        enter("txtDiscPerc", "5");
        enter("txtServicePerc", "10");
        enter("txtAgent", "a1");
        enter("txtEmployee", "E1");
        m_form->findChild<QDateEdit*>("dateDue")->setDate(QDate(2026, 4, 1));
        enter("txtPaid", "400");
        m_people->answer(QMessageBox::No);
        save();
        QTRY_COMPARE(invoices(), 1);
        m_form.reset();

        openForm();
        QCOMPARE(shown("txtKode"), QString("TRD-0007"));
        QCOMPARE(m_form->findChild<QDateEdit*>("dateDue")->date(), QDate(2026, 4, 1));
        QCOMPARE(shown("txtMember"), QString("M1"));
        QCOMPARE(shown("txtAgent"), QString("A1"));
        QCOMPARE(shown("txtEmployee"), QString("E1"));
        QCOMPARE(shown("txtDiscPerc"), QString("5"));
        QCOMPARE(shown("txtDiscount"), QString("50,00"));
        QCOMPARE(shown("txtService"), QString("100,00"));
        QCOMPARE(shown("txtGrandTotal"), QString("1.050,00"));
        QCOMPARE(shown("txtNetDue"), QString("-650,00"));
        QVERIFY(!m_form->findChild<QDateEdit*>("datePay")->isEnabled());
        // The amount is selected, so typing replaces it.
        QTest::keyClicks(box("txtPaid"), "1050");
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::No);
        save();
        QTRY_COMPARE(invoice("version, status, amount_paid_amount"), (QStringList{"2", "1", "1050"}));
        QCOMPARE(invoices(), 1);
    }

    void aStaleInvoiceLeavesTheFormAsItWasTyped()
    {
        openForm();
        m_people->answer(QMessageBox::No);
        save();
        QTRY_COMPARE(shown("txtKode"), QString("TRD-0007"));
        m_people->clear();
        run("UPDATE invoice SET version = version + 1, amount_paid_amount = 250, updatedby = 5");
        type("txtPaid", "700");
        save();
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().contains("Table: invoice has been updated"), qPrintable(m_people->lastText()));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(shown("txtNetDue"), QString("-300,00"));
        QCOMPARE(invoice("amount_paid_amount"), QStringList{"250"});
        m_form.reset();
        openForm();
        QCOMPARE(shown("txtNetDue"), QString("-750,00"));
    }

    void aLostConnectionLeavesTheFormAndCanBeTriedAgain()
    {
        openForm();
        type("txtPaid", "700");
        const QString allow = "ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS ";
        TestCluster::instance().run(allow + "false");
        m_database->killConnections();
        save();
        // One message box with the database's error, and none about the cashier's input.
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(!m_people->lastText().contains("Cash Accounts"), qPrintable(m_people->lastText()));
        QVERIFY2(m_people->lastText().contains("connection"), qPrintable(m_people->lastText()));
        QCOMPARE(invoices(), 0);
        QCOMPARE(shown("txtNetDue"), QString("-300,00"));

        TestCluster::instance().run(allow + "true");
        m_people->clear();
        m_people->answer(QMessageBox::No);
        save();
        QTRY_COMPARE(invoice("no, amount_paid_amount"), (QStringList{"TRD-0007", "700"}));
        QCOMPARE(count("invoice_detail"), 2);
        QCOMPARE(m_people->texts(), QStringList{printQuestion});
    }

    void aPartyThatPaysApartIsAskedForItsInvoice()
    {
        auto* sales = service<BusinessPenjualan>("Sales");
        for (double subtotal : {600, 400}) {
            EntityInvoiceMakanDitempat sale;
            InvoiceTotals totals;
            totals.setCurrency("Rp");
            totals.setSubtotal(subtotal);
            totals.writeTo(sale.getInvoice());
            sale.getInvoice()->setInvoiceDate(QDate(2026, 3, 1));
            sale.getInvoice()->setAcctCode("1010");
            sale.setMakanDitempat(sales->findOrder(m_order));
            QVERIFY2(sales->insertInvoice(&sale), qPrintable(sales->takeErrors()));
        }
        m_people->expect<DialogSelectSplitInvoice>([](DialogSelectSplitInvoice* choice) {
            QCOMPARE(choice->windowTitle(), QString("Select an Invoice"));
            QTest::keyClick(choice, Qt::Key_Escape);
        });
        DialogBayarMakanDitempat dropped;
        QVERIFY(!dropped.openOrder(sales->findOrder(m_order)));

        m_people->expect<DialogSelectSplitInvoice>([](DialogSelectSplitInvoice* choice) {
            auto* grid = choice->findChild<QTableView*>("tblInvoice");
            QTest::keyClick(grid, Qt::Key_Down);
            QTest::keyClick(grid, Qt::Key_Return);
        });
        openForm();
        QCOMPARE(shown("txtKode"), QString("TRD-0008"));
        QVERIFY(m_people->finished());
    }

private:
    void openForm()
    {
        m_form = std::make_unique<DialogBayarMakanDitempat>();
        QVERIFY(m_form->openOrder(service<BusinessPenjualan>("Sales")->findOrder(m_order)));
        showForm(m_form.get());
        QTRY_VERIFY(box("txtPaid")->hasFocus());
    }

    [[nodiscard]] QLineEdit* box(const QString& name) const { return ::box(m_form.get(), qPrintable(name)); }
    [[nodiscard]] QString shown(const QString& name) const { return box(name)->text(); }
    void type(const QString& name, const QString& text) { typeInto(m_form.get(), name, text); }
    void enter(const QString& name, const QString& text) { ::enter(m_form.get(), name, text); }
    void click(const char* button) { ::click(m_form.get(), button); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        bringToFront(m_form.get());
        QTest::keyClick(m_form->focusWidget(), key, modifiers);
    }

    void save()
    {
        box("txtPaid")->setFocus();
        press(Qt::Key_Return);
    }

    QStringList invoice(const QString& columns)
    {
        return value("SELECT concat_ws(' ', " + columns + ") FROM invoice ORDER BY id DESC").split(' ');
    }

    int orderStatus() { return value("SELECT status FROM makan_ditempat").toInt(); }
    int invoices() { return count("invoice"); }

    std::unique_ptr<DialogBayarMakanDitempat> m_form;
    int m_order = 0;
};

QTEST_MAIN(TestPayment)
#include "tst_payment.moc"
