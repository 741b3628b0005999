#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/commission/DialogKomisiAgen.h"
#include "zavel/commission/DialogSetPercentage.h"
#include "zavel/commission/TabAllKomisiAgen.h"
#include "zavel/commission/TabKomisiAgen.h"
#include "zavel/service/BusinessPenjualan.h"

/** Agents' commissions, from the list to the payment, with keyboard and mouse. */
class TestAgentCommissions : public PageTest<AppListTab>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        insertSeller(*m_database, 1, "ann");
        for (const QString type : {"TRD", "TRF", "TRP"})
            insertSale(*m_database, {type + "-1", type, type == "TRD" ? 505 : 300, 100, 0, 1, QDate::currentDate(),
                                     "Mary", 1, 0, 0, 1});
    }

private slots:
    void thePaymentIsOpenedFromTheListOfSales()
    {
        show<TabAllKomisiAgen>();
        QCOMPARE(cells(m_page.get(), 1).mid(2), (QStringList{"Guide", "Rp505,00", "10", "Rp51,00", "Unpaid"}));
        choose(m_page.get(), 1);
        onForm("btnAdd", [](DialogKomisiAgen* form) {
            QCOMPARE(form->windowTitle(), QString("Agent Commission Payment Form"));
            QCOMPARE(shown(form, "txtAgen"), QString("A1"));
            QCOMPARE(shown(form, "txtAddress"), QString("Street 2"));
            QCOMPARE(shown(form, "txtPerc"), QString("10"));
            // All that is pending of the agent.
            QCOMPARE(cells(form, 0).mid(2), (QStringList{"Mary", "Rp300,00", "10", "Rp30,00"}));
            QCOMPARE(shown(form, "txtGrandTotal"), QString("81,00"));
            enter(form, "txtExpenseAccount", "1-100");
            QCOMPARE(labelled(form, "lblExpenseAccount"), QString("Cash"));
            // What is still due follows every key.
            for (const auto& [typed, told] :
                 {std::pair("80", "Less : 1,00"), {"100", "Change : -19,00"}, {"81", "Change : 0,00"}}) {
                typeInto(form, "txtPaid", typed);
                QCOMPARE(labelled(form, "lblNetDue") + ' ' + shown(form, "txtNetDue"), QString(told));
                QCOMPARE(shown(form, "txtPaid"), QString(typed));
            }
            confirm(form, "txtNoRef");
        });
        QTRY_COMPARE(cells(m_page.get(), 1).last(), QString("Fully Paid"));
        QCOMPARE(value("SELECT concat_ws(' ', no, grandtotal_amount, amount_paid_amount, net_due_amount, bank_id) FROM "
                       "komisi_agen"),
                 QString("KAG-0007 81 81 0 1"));
        QCOMPARE(value("SELECT string_agg(concat_ws(' ', commision_perc, commision_amount), ', ' ORDER BY invoice_id) "
                       "FROM komisi_agen_detail"),
                 QString("10 51, 10 30"));

        // A paid row opens the payment that paid it.
        choose(m_page.get(), 0);
        onForm("btnAdd", [](DialogKomisiAgen* form) {
            QCOMPARE(shown(form, "txtKode"), QString("KAG-0007"));
            QCOMPARE(rowsOf(form), 2);
            QCOMPARE(shown(form, "txtPaid"), QString("81,00"));
            enter(form, "txtPaid", "90");
            confirm(form, "txtNoRef");
        });
        QTRY_COMPARE(value("SELECT concat_ws(' ', amount_paid_amount, net_due_amount) FROM komisi_agen"),
                     QString("90 -9"));
    }

    void theListFollowsTodaysPercentAndItsFilters()
    {
        payAll();
        run("UPDATE agent SET commision_perc = 12.5");
        insert("agent", "id=2, kode='A2', nama='Pilot', commision_perc=5");
        insertSale(*m_database, {"TRF-2", "TRF", 100, 100, 0, 1, QDate::currentDate(), "", 1, 0, 0, 2});
        show<TabAllKomisiAgen>();
        // Paid at ten percent, shown at the agent's current percentage; the lines keep the paid one.
        QCOMPARE(cells(m_page.get(), 1).mid(3), (QStringList{"Rp300,00", "12,5", "Rp38,00", "Fully Paid"}));
        QCOMPARE(value("SELECT sum(commision_amount) FROM komisi_agen_detail"), QString("81"));

        const auto found = [this](const QString& status, const QString& agent) {
            m_page->findChild<QComboBox*>("ddlStatus")->setCurrentText(status);
            enter(m_page.get(), "txtAgent", agent);
            click(m_page.get(), "btnSearch");
            return column(0).join(' ');
        };
        QCOMPARE(found("All", ""), QString("TRF-2 TRF-1 TRD-1"));
        QCOMPARE(found("Unpaid", ""), QString("TRF-2"));
        QCOMPARE(found("Fully Paid", ""), QString("TRF-1 TRD-1"));
        QCOMPARE(found("Fully Paid", "A2"), QString());
        QCOMPARE(found("All", "a1"), QString("TRF-1 TRD-1"));
        QCOMPARE(found("All", "nobody"), QString());
    }

    void aPaymentThatWentMeanwhileIsTold()
    {
        payAll();
        show<TabAllKomisiAgen>();
        run("DELETE FROM komisi_agen_detail");
        choose(m_page.get(), 0);
        click(m_page.get(), "btnAdd");
        QCOMPARE(m_people->texts(), QStringList("Can not find invoice of this agent"));
        QCOMPARE(cells(m_page.get(), 0).last(), QString("Unpaid"));
    }

    void aPercentIsSetForOneInvoice_data()
    {
        const auto row = addColumns<QString, QString, QString>("typed", "line", "total");
        row("more", "12,5", "12,5 Rp63,00", "93,00");
        row("none", "0", "0 Rp0,00", "30,00");
        row("all of it", "100", "100 Rp505,00", "535,00");
        row("more than all", "100,01", "10 Rp51,00", "81,00");
        row("less than nothing", "-1", "10 Rp51,00", "81,00");
        row("no number", "x", "10 Rp51,00", "81,00");
    }
    void aPercentIsSetForOneInvoice()
    {
        QFETCH(QString, typed);
        show<TabKomisiAgen>();
        onForm("btnAdd", [&](DialogKomisiAgen* form) {
            enter(form, "txtAgen", "A1");
            choose(form, 1);
            m_people->expect<DialogSetPercentage>([&](DialogSetPercentage* one) {
                QApplication::setActiveWindow(one);
                QVERIFY(box(one, "txtPerc")->hasFocus());
                QCOMPARE(shown(one, "txtInvoiceNo"), QString("TRD-1"));
                QCOMPARE(shown(one, "txtTotal"), QString("505,00"));
                QTest::keyClicks(box(one, "txtPerc"), typed);
                QTest::keyClick(box(one, "txtPerc"), Qt::Key_Return);
                if (one->isVisible()) {
                    QCOMPARE(m_people->texts(), QStringList("Enter a valid value between 0-100\r\n"));
                    giveUp(one);
                }
            });
            click(form, "btnSetPerc");
            QTEST(cells(form, 1).mid(4).join(' '), "line");
            QTEST(shown(form, "txtGrandTotal"), "total");
            giveUp(form);
        });
    }

    void aPaymentMustBeWhole_data()
    {
        const auto row =
            addColumns<QString, QString, QString, QString, QStringList>("agent", "percent", "account", "paid", "told");
        const QString less = "The amount paid less than the total invoice";
        row("an empty form", "", "10", "", "",
            {"Select an agent", "Add one or more sales invoices", less, "Please select an Expense Account"});
        row("an agent without a percent", "A1", "0", "1-100", "5",
            {"Enter the amount paid for this Invoice no: TRF-1"});
        row("less than the whole", "A1", "10", "1-100", "80", {less});
        row("no number", "A1", "10", "1-100", "81x", {"Please enter a number"});
        row("an unknown account", "A1", "10", "9", "81", {"Please select a valid Expense Account"});
    }
    void aPaymentMustBeWhole()
    {
        FETCH(QString, agent, percent, account, paid);
        QFETCH(QStringList, told);
        run("UPDATE agent SET commision_perc = " + percent);
        show<TabKomisiAgen>();
        onForm("btnAdd", [&](DialogKomisiAgen* form) {
            enter(form, "txtAgen", agent);
            enter(form, "txtExpenseAccount", account);
            enter(form, "txtPaid", paid);
            confirm(form, "txtNoRef");
            QVERIFY(form->isVisible());
            QCOMPARE(m_people->texts(), QStringList(told.join("\r\n") + "\r\n"));
            giveUp(form);
        });
        QCOMPARE(value("SELECT count(*) FROM komisi_agen"), QString("0"));
    }

    void anInvoiceTakenOffThePaymentIsPendingAgain()
    {
        payAll();
        QCOMPARE(pending(), 0);
        choose(m_page.get(), 0);
        onForm("btnEdit", [](DialogKomisiAgen* form) {
            gridOf(form)->setFocus();
            choose(form, 1);
            click(form, "pushButton");
            QCOMPARE(shown(form, "txtGrandTotal"), QString("30,00"));
            confirm(form, "txtNoRef");
        });
        QTRY_COMPARE(cells(m_page.get(), 0).value(3), QString("Rp30,00"));
        QCOMPARE(pending(), 1);
    }

    void aDeletedPaymentLeavesItsInvoicesPending()
    {
        payAll();
        const QStringList payment = cells(m_page.get(), 0);
        QCOMPARE(payment.first(), QString("KAG-0007"));
        QCOMPARE(payment.mid(2, 4), (QStringList{"Guide", "Rp81,00", "Rp100,00", "Rp-19,00"}));
        const auto found = [this](const QString& number) {
            enter(m_page.get(), "txtNo", number);
            click(m_page.get(), "btnSearch");
            return rowsOf(m_page.get());
        };
        QCOMPARE(found("g-0008"), 0);
        QCOMPARE(found("g-0007"), 1);
        // A deleted sale leaves its line, which must not block the payment.
        run("DELETE FROM invoice_fast_food; DELETE FROM invoice_detail WHERE invoice_id = 2; "
            "DELETE FROM invoice WHERE id = 2");

        choose(m_page.get(), 0);
        m_people->answer(QMessageBox::Yes);
        click(m_page.get(), "btnDelete");
        QTRY_COMPARE(rowsOf(m_page.get()), 0);
        QCOMPARE(m_people->texts(), QStringList("Are you sure you want to delete Payment with No: KAG-0007"));
        QCOMPARE(value("SELECT count(*) FROM komisi_agen_detail"), QString("0"));
        QCOMPARE(pending(), 1);
    }

    void whoMayPayMayNotOpenWhatWasPaid()
    {
        payAll();
        loginWithRights("Sales", {{BusinessPenjualan::BAYAR_KOMISI_AGEN, 2}});
        show<TabAllKomisiAgen>();
        choose(m_page.get(), 0);
        click(m_page.get(), "btnAdd");
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY(m_people->surprises().isEmpty());
    }

private:
    /** Pays the shop's agent for all that is pending, from the page of payments. */
    void payAll()
    {
        show<TabKomisiAgen>();
        onForm("btnAdd", [](DialogKomisiAgen* form) {
            enter(form, "txtAgen", "a1");
            enter(form, "txtExpenseAccount", "1-100");
            enter(form, "txtPaid", "100");
            confirm(form, "txtNoRef");
        });
        QCOMPARE(rowsOf(m_page.get()), 1);
    }

    static int pending()
    {
        return service<BusinessPenjualan>("Sales")->searchPendingInvoiceForAgentCommision(1).size();
    }
};

QTEST_MAIN(TestAgentCommissions)
#include "tst_agent_commissions.moc"
