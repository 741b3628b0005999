#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/receivable/DialogBayarPiutang.h"
#include "zavel/receivable/DialogPiutang.h"
#include "zavel/receivable/EntityPiutang.h"
#include "zavel/receivable/TabPiutang.h"
#include "zavel/service/BusinessPenjualan.h"

/** The cashier at the page of members' payments, with keyboard and mouse. */
class TestMemberPayments : public PageTest<TabPiutang>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        insertSeller(*m_database, 1, "ann");
        insert("member", "id=2, kode='M2', nama='Other'");
        for (const int total : {500, 300})
            insertSale(*m_database, {QString("TRD-%1").arg(total), "TRD", total, 0, 0, Invoice::UNPAID,
                                     QDate(2026, 3, total / 100), "", 1, 1});
    }

private slots:
    void aMemberPaysAllThatIsOpen()
    {
        show();
        onForm("btnAdd", [](DialogPiutang* form) {
            QCOMPARE(form->windowTitle(), QString("Member Payment Form"));
            enter(form, "txtMember", "m1");
            QCOMPARE(shown(form, "txtMember"), QString("M1"));
            QCOMPARE(shown(form, "txtNamaPelanggan"), QString("Guest"));
            QCOMPARE(cells(form, 0).mid(2), (QStringList{"Rp500,00", "Rp500,00", "Rp0,00"}));
            QCOMPARE(cells(form, 1).first(), QString("TRD-300"));
            click(form, "pushButton");
            // A second click changes nothing.
            click(form, "pushButton");
            QCOMPARE(cells(form, 0).mid(2), (QStringList{"Rp500,00", "Rp0,00", "Rp500,00"}));
            QCOMPARE(shown(form, "txtGrandTotal"), QString("800,00"));
            enter(form, "txtARAccount", "1-100");
            QCOMPARE(labelled(form, "lblARAccount"), QString("Cash"));
            form->findChild<QComboBox*>("ddlPaymentType")->setFocus();
            QTest::keyClicks(form->findChild<QComboBox*>("ddlPaymentType"), "che");
            enter(form, "txtCekNo", "77");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(cells(m_page.get(), 0).mid(2), (QStringList{"M1", "Guest", "Rp800,00", "Check"}));
        QCOMPARE(label("lblCount"), QString("1 Items"));
        QCOMPARE(value("SELECT concat_ws(' ', no, check_no, bank_id) FROM piutang"), QString("PIU-0007 77 1"));
        QCOMPARE(
            value("SELECT string_agg(concat_ws(' ', status, other_payment_amount, net_due_amount), ', ' ORDER BY id) "
                  "FROM invoice"),
            QString("1 500 0, 1 300 0"));
    }

    void aMemberIsPickedWhileTyping()
    {
        DialogPiutang form;
        showForm(&form);
        QTRY_VERIFY(box(&form, "txtMember")->hasFocus());
        QTest::keyClicks(box(&form, "txtMember"), "gue");
        QTRY_VERIFY(QApplication::activePopupWidget());
        const StatementCount statements;
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QTRY_VERIFY(box(&form, "txtARAccount")->hasFocus());
        QCOMPARE(shown(&form, "txtMember"), QString("M1"));
        QCOMPARE(form.findChild<QLabel*>("lblCount")->text(), QString("2 Items"));
        QVERIFY(statements.count() <= 2);

        // The walk with the Tab key goes through the page to the buttons below it.
        QStringList walk;
        for (int step = 0; step < 14; ++step) {
            const QString name = form.focusWidget()->objectName();
            if (walk.isEmpty() || walk.last() != name)
                walk.append(name);
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(walk.mid(0, 6),
                 (QStringList{"txtARAccount", "txtNotes", "datePay", "ddlPaymentType", "txtCekNo", "txtRefNo"}));
        QCOMPARE(walk.mid(7, 3), (QStringList{"tblInvoice", "btnPayAll", "pushButton"}));
        QTest::keyClick(&form, Qt::Key_F3);
        QTRY_VERIFY(form.findChild<QTableView*>("tblInvoice")->hasFocus());
    }

    void aPartIsPaidOfOneInvoice_data()
    {
        addColumns<QString, QString, QStringList, bool, QString>("typed", "remaining", "told", "agrees", "paid");
        const auto row = [](const char* name, const QString& typed, const QString& remaining, const QStringList& told,
                            const QString& paid,
                            bool agrees = false) { addRow(name, typed, remaining, told, agrees, paid); };
        const QString untouched = "Rp500,00 Rp0,00";
        const QStringList nothing{"Enter the amount paid\r\n"};
        const QStringList more{"The amount paid is larger than the amount due. Do you want to book all of it?"};
        row("a part", "120", "380,00", {}, "Rp380,00 Rp120,00");
        row("all of it", "500", "0,00", {}, "Rp0,00 Rp500,00");
        row("nothing", "0", "500,00", nothing, untouched);
        row("no number", "x", "500,00", nothing, untouched);
        row("less than nothing", "-50", "550,00", nothing, untouched);
        row("too much, by mistake", "5000", "-4.500,00", more, untouched);
        row("too much, on purpose", "600", "-100,00", more, "Rp-100,00 Rp600,00", true);
    }
    void aPartIsPaidOfOneInvoice()
    {
        QFETCH(QString, typed);
        QFETCH(bool, agrees);
        show();
        onForm("btnAdd", [&](DialogPiutang* form) {
            enter(form, "txtMember", "M1");
            m_people->expect<DialogBayarPiutang>([&](DialogBayarPiutang* one) {
                bringToFront(one);
                QVERIFY(box(one, "txtPaid")->hasFocus());
                QCOMPARE(shown(one, "txtInvoiceNo"), QString("TRD-500"));
                QCOMPARE(shown(one, "txtDue"), QString("500,00"));
                QTest::keyClicks(box(one, "txtPaid"), typed);
                QTEST(shown(one, "txtRemaining"), "remaining");
                if (agrees)
                    m_people->answer(QMessageBox::Yes);
                QTest::keyClick(box(one, "txtPaid"), Qt::Key_Return);
                if (one->isVisible())
                    giveUp(one);
                m_people->expect<DialogPiutang>([&](DialogPiutang* again) {
                    QTEST(cells(again, 0).mid(3).join(' '), "paid");
                    giveUp(again);
                });
            });
            gridOf(form)->setFocus();
            QTest::keyClick(gridOf(form), Qt::Key_F2);
        });
        QTEST(m_people->texts(), "told");
        QCOMPARE(value("SELECT count(*) FROM piutang"), QString("0"));
    }

    void whatIsMissingIsTold_data()
    {
        const auto row = addColumns<QString, bool, QString, QStringList>("member", "pays", "account", "told");
        row("everything", "", false, "",
            {"Select a member", "Enter one or more sales invoice", "Please select an Accounts Receivable"});
        row("a member whom nobody knows", "M9", false, "1-100", {"Select a member", "Enter one or more sales invoice"});
        row("a member without open invoices", "M2", false, "1-100", {"Enter one or more sales invoice"});
        row("an amount", "M1", false, "1-100", {"Enter the amount paid for the invoice no: TRD-500"});
        row("an account that nobody knows", "M1", true, "9", {"Please select a valid Accounts Receivable"});
    }
    void whatIsMissingIsTold()
    {
        FETCH(QString, member, account);
        QFETCH(bool, pays);
        QFETCH(QStringList, told);
        show();
        onForm("btnAdd", [&](DialogPiutang* form) {
            enter(form, "txtMember", member);
            enter(form, "txtARAccount", account);
            if (pays)
                click(form, "pushButton");
            confirm(form, "txtRefNo");
            QVERIFY(form->isVisible());
            QCOMPARE(m_people->texts(), QStringList(told.join("\r\n") + "\r\n"));
            QCOMPARE(m_people->lastTitle(), QString("Error"));
            giveUp(form);
        });
        QCOMPARE(value("SELECT count(*) FROM piutang"), QString("0"));
    }

    void aCardAtTheSaleIsNotReplacedUnasked()
    {
        run("UPDATE invoice SET other_payment_amount = 40, status = 3 WHERE no = 'TRD-300'");
        show();
        onForm("btnAdd", [this](DialogPiutang* form) {
            enter(form, "txtMember", "m1");
            click(form, "pushButton");
            enter(form, "txtARAccount", "1-100");
            confirm(form, "txtRefNo");
            // Return presses No, the default button.
            QVERIFY(form->isVisible());
            QVERIFY2(m_people->lastText().contains("as of a card at the sale: Rp40 on TRD-300."),
                     qPrintable(m_people->lastText()));
            QCOMPARE(value("SELECT count(*) FROM piutang"), QString("0"));
            m_people->answer(QMessageBox::Yes);
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(
            value("SELECT string_agg(concat_ws(' ', other_payment_amount, net_due_amount), ', ' ORDER BY id) FROM "
                  "invoice"),
            QString("500 0, 260 40"));
        // Earlier payments of members cause no question.
        m_people->clear();
        onForm("btnAdd", [](DialogPiutang* form) {
            enter(form, "txtMember", "m1");
            click(form, "pushButton");
            enter(form, "txtARAccount", "1-100");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(value("SELECT sum(net_due_amount) FROM invoice"), QString("0"));
        QCOMPARE(m_people->texts(), QStringList());
    }

    void anEditShowsItsOwnPartAndWhatElseIsOpen()
    {
        payStored(1, 300);
        payStored(1, 200);
        show();
        QCOMPARE(cells(m_page.get(), 1).first(), QString("PIU-0007"));
        choose(m_page.get(), 1);
        onForm("btnEdit", [this](DialogPiutang* form) {
            QCOMPARE(shown(form, "txtKode"), QString("PIU-0007"));
            QCOMPARE(shown(form, "txtARAccount"), QString("1-100"));
            QCOMPARE(shown(form, "txtGrandTotal"), QString("300,00"));
            // The fully paid invoice is in no other list; the part paid by the other payment is not due again.
            QCOMPARE(cells(form, 0).mid(3), (QStringList{"Rp300,00", "Rp0,00"}));
            QCOMPARE(cells(form, 1).mid(3), (QStringList{"Rp0,00", "Rp300,00"}));
            pay(form, 1, "100");
            QCOMPARE(cells(form, 1).mid(3), (QStringList{"Rp200,00", "Rp100,00"}));
            pay(form, 0, "50");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(cells(m_page.get(), 1).value(4), QString("Rp150,00"));
        QCOMPARE(
            value("SELECT string_agg(concat_ws(' ', status, other_payment_amount, net_due_amount), ', ' ORDER BY id) "
                  "FROM invoice"),
            QString("3 300 200, 3 50 250"));
    }

    void anotherMembersPaymentTakesTheStoredLinesOff()
    {
        payStored(1, 300);
        run("UPDATE makan_ditempat SET member_id = 2 WHERE id = 2");
        show();
        choose(m_page.get(), 0);
        onForm("btnEdit", [](DialogPiutang* form) {
            enter(form, "txtMember", "M2");
            QCOMPARE(cells(form, 0).first(), QString("TRD-300"));
            click(form, "pushButton");
            confirm(form, "txtRefNo");
        });
        QTRY_COMPARE(value("SELECT string_agg(concat_ws(' ', member_id, invoice_id, amount_paid_amount), ', ') FROM "
                           "piutang_detail JOIN piutang ON piutang.id = piutang_id"),
                     QString("2 2 300"));
        // An invoice that was removed from the payment is not updated.
        QCOMPARE(value("SELECT other_payment_amount FROM invoice WHERE id = 1"), QString("300"));
    }

    void theFiltersNarrowTheList()
    {
        payStored(1, 300);
        show();
        const auto found = [this] {
            click(m_page.get(), "btnSearch");
            return label("lblCount");
        };
        for (const char* member : {"", "M2", "nobody", "m1"}) {
            enter(m_page.get(), "txtMember", member);
            QCOMPARE(found(), QString(*member == 'M' || *member == 'n' ? "0 Items" : "1 Items"));
        }
        auto* kind = m_page->findChild<QComboBox*>("ddlPayment");
        kind->setFocus();
        QTest::keyClick(kind, Qt::Key_End);
        QCOMPARE(found(), QString("0 Items"));
        QTest::keyClick(kind, Qt::Key_Home);
        QTest::keyClick(kind, Qt::Key_Down);
        QCOMPARE(kind->currentText(), QString("Cash"));
        QCOMPARE(found(), QString("1 Items"));
        m_page->findChild<QDateEdit*>("dateFrom")->setDate(QDate::currentDate().addDays(1));
        QCOMPARE(found(), QString("0 Items"));
    }

private:
    /** Pays the amount of the selected invoice. */
    void pay(DialogPiutang* form, int invoice, const QString& amount)
    {
        choose(form, invoice);
        m_people->expect<DialogBayarPiutang>([amount](DialogBayarPiutang* one) {
            typeInto(one, "txtPaid", amount);
            confirm(one, "txtPaid");
        });
        click(form, "btnPayAll");
    }

    void payStored(int invoice, int amount)
    {
        EntityPiutang payment;
        EntityPiutangDetail line;
        line.setInvoice(known<Invoice>(invoice));
        line.setAmountPaid(rupiah(amount));
        line.setAmountDue(rupiah(0));
        payment.setMember(known<EntityMember>(1));
        payment.setBank(known<EntityBank>(1));
        payment.setDate(QDate::currentDate());
        payment.setGrandTotal(line.getAmountPaid());
        payment.setDetails({&line});
        auto* sales = service<BusinessPenjualan>("Sales");
        QVERIFY2(sales->insert(&payment), qPrintable(sales->takeErrors()));
    }
};

QTEST_MAIN(TestMemberPayments)
#include "tst_member_payments.moc"
