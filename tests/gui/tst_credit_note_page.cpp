#include "pos/purchasing/creditnote/DialogCreditNote.h"
#include "pos/purchasing/creditnote/DialogCreditNoteInvoice.h"
#include "pos/purchasing/creditnote/DialogCreditNotePurchases.h"
#include "pos/purchasing/creditnote/DialogSelectPurchases.h"
#include "pos/purchasing/creditnote/TabCreditNote.h"
#include "support/DatabaseTest.h"
#include "support/PurchasingRows.h"

/** The storekeeper at the page of credit notes, with keyboard and mouse. */
class TestCreditNotePage : public PageTest<TabCreditNote>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        insertItem(*m_database, 2, "EGG", "Egg");
        insert("bank", "id=2, kode='2000', nama='Accounts Payable', account_type=2, active=true");
        insert("supplier", "id=2, kode='S2', nama='Butcher'");
        insertPurchase(*m_database, {"NB-0001", "INV-A", 0, 20, 100, 10, 1});
        insertPurchase(*m_database, {"NB-0002", "INV-B", 500, 5, 100, 0, 2});
        show();
    }

private slots:
    void goodsOfAPurchaseAndAFreeItemGoBack()
    {
        onNote("btnAdd", [this](DialogCreditNote* form) {
            enter(form, "txtSupplier", "s1");
            QCOMPARE(shown(form, "txtSupplierName"), QString("Market"));
            takePurchase(form, [](DialogSelectPurchases* offer) {
                QCOMPARE(offer->windowTitle(), QString("Select Purchases"));
                QCOMPARE(cells(offer, 0).mid(0, 2), (QStringList{"NB-0002", "INV-B"}));
                enter(offer, "txtFilter", "a");
                set(offer, "ddlFilter", "inv");
                click(offer, "btnSearch");
                QCOMPARE(cells(offer, 0).mid(0, 2), (QStringList{"NB-0001", "INV-A"}));
                press(offer, QDialogButtonBox::Ok);
            });
            QCOMPARE(shown(form, "txtPurchaseNo"), QString("NB-0001"));
            QCOMPARE(cells(form, 0),
                     (QStringList{"RICE", "Rice", "20", "0", "Kilogram", "Rp100,00", "Rp0,00", "Rp0,00"}));
            // The discount that the purchase had is taken off each of those that go back.
            onLine<DialogCreditNoteInvoice>(form, "btnEdit", {{"txtQty", "3"}}, true);
            QCOMPARE(cells(form, 0).mid(3), (QStringList{"3", "Kilogram", "Rp100,00", "Rp30,00", "Rp270,00"}));
            addFree(form, "4");
            QCOMPARE(cells(form, 0), (QStringList{"EGG", "Egg", "4", "Kilogram", "Rp50,00", "Rp0,00", "Rp200,00"}));
            QCOMPARE(shown(form, "txtSubTotal"), QString("470,00"));
            QCOMPARE(form->findChild<QComboBox*>("ddlStatus")->currentText(), QString("Partially Paid"));
            enter(form, "txtDiscount", "20");
            enter(form, "txtPaid", "500");
            QCOMPARE(form->findChild<QComboBox*>("ddlStatus")->currentText(), QString("Full Paid"));
            QCOMPARE(labelled(form, "lblNetDue"), QString("Change :"));
            QCOMPARE(shown(form, "txtNetDue"), QString("50,00"));
            press(form, QDialogButtonBox::Ok);
        });
        QCOMPARE(cells(m_page.get(), 0).mid(1),
                 (QStringList{"NR-0007", "Market", "Fully Paid", "Rp450,00", "Rp500,00"}));
        QCOMPARE(label("lblCount"), QString("1 items"));
        QCOMPARE(value("SELECT concat_ws(' ', credit_note_date = current_date, apply_to_invoice, acquisition_id, "
                       "change_amount, status, bank_id) FROM credit_note"),
                 QString("t t 1 50 1 2"));
        QCOMPARE(value("SELECT string_agg(concat_ws(' ', item_id, qty, qty_returned, acquisition_detail_id, "
                       "total_price_amount), ', ' ORDER BY id) FROM credit_note_detail"),
                 QString("1 20 3 1 270, 2 0 4 200"));
        QCOMPARE(dues(), QString("500 1300 3, 0 0 1"));
    }

    void aStoredNoteIsShownAndChanged()
    {
        storeNote();
        onNote("btnEdit", [this](DialogCreditNote* form) {
            QCOMPARE(shown(form, "txtNo") + shown(form, "txtPurchaseNo"), QString("NR-0007NB-0001"));
            QCOMPARE(cells(form, 0).mid(2, 2), (QStringList{"20", "3"}));
            // Choosing the same purchase again keeps the input; another purchase replaces it.
            takeOlder(form);
            QCOMPARE(cells(form, 0).mid(2, 2), (QStringList{"20", "3"}));
            takePurchase(form, [](DialogSelectPurchases* offer) { press(offer, QDialogButtonBox::Ok); });
            QCOMPARE(cells(form, 0).mid(0, 4), (QStringList{"EGG", "Egg", "5", "0"}));
            QCOMPARE(shown(form, "txtPurchaseNo"), QString("NB-0002"));
            addFree(form, "1");
            set(form, "ddlStatus", "canc");
            press(form, QDialogButtonBox::Ok);
        });
        QCOMPARE(cells(m_page.get(), 0).value(3), QString("Cancelled"));
        QCOMPARE(value("SELECT string_agg(concat_ws(' ', item_id, qty_returned), ', ' ORDER BY id) FROM "
                       "credit_note_detail"),
                 QString("2 0, 2 1"));
        QCOMPARE(dues(), QString("0 1800 2, 270 -270 1"));

        // Deleting the note does not change the due amount.
        m_people->answer(QMessageBox::Yes);
        click(m_page.get(), "btnDelete");
        QCOMPARE(m_people->lastText(), QString("Are you sure you want to delete Credit Note with No: NR-0007 ?"));
        QCOMPARE(label("lblCount"), QString("0 items"));
        QCOMPARE(dues(), QString("0 1800 2, 270 -270 1"));
    }

    void whatIsMissingIsTold_data()
    {
        const auto row = addColumns<Entries, QString, QStringList>("entries", "lines", "told");
        const QPair<const char*, QString> supplier("txtSupplier", "S1");
        const QPair<const char*, QString> paid("txtPaid", "0");
        row("nothing is keyed in", {{"txtAPAccount", ""}}, "",
            {"Select a supplier", "Add one or more items", "Enter the amount paid", "Enter the Accounts Payable"});
        row("nothing goes back", {supplier, paid, {"txtAPAccount", "x"}}, "bought",
            {"There should be minimal one item returned", "Enter the valid Accounts Payable"});
        row("nobody said what came back", {supplier}, "free", {"Enter the amount paid"});
        row("less than nothing came back", {supplier, {"txtPaid", "-5"}}, "free", {"Enter the amount paid"});
        row("what came back is no number", {supplier, {"txtPaid", "5x"}}, "free", {"Enter the amount paid"});
        row("nothing came back yet", {supplier, paid}, "free", {});
        row("a supplier that nobody knows", {{"txtSupplier", "S9"}, paid}, "free", {"Select a supplier"});
        row("the purchase is another supplier's", {paid, {"txtSupplier", "S2"}}, "bought free",
            {"The purchase is of another supplier"});
    }
    void whatIsMissingIsTold()
    {
        QFETCH(Entries, entries);
        QFETCH(QString, lines);
        QFETCH(QStringList, told);
        onNote("btnAdd", [&](DialogCreditNote* form) {
            if (lines.contains("bought")) {
                enter(form, "txtSupplier", "S1");
                takeOlder(form);
            }
            if (lines.contains("free"))
                addFree(form, "1");
            enterAll(form, entries);
            press(form, QDialogButtonBox::Ok);
            if (!told.isEmpty())
                giveUp(form);
        });
        QCOMPARE(m_people->lastText(), words(told));
        QCOMPARE(rowsOf(m_page.get()), told.isEmpty() ? 1 : 0);
    }

    void aLineTakesWhatCanGoBack_data()
    {
        const auto row = addColumns<bool, Entries, QStringList>("isFree", "entries", "told");
        const QString tooMany = "No more than 17 of this item can go back for the purchase";
        row("nothing keyed in", true, {},
            {"Enter the item code", "Enter the purchase price of this item", "Enter the qty"});
        row("fewer than none", true, {{"txtCode", "RICE"}, {"txtUnitPrice", "5"}, {"txtQty", "-2"}}, {"Enter the qty"});
        row("a price below nothing", true, {{"txtCode", "RICE"}, {"txtUnitPrice", "-5"}, {"txtQty", "2"}},
            {"Enter the purchase price of this item"});
        row("none of a purchase", false, {{"txtQty", "0"}}, {"Enter the qty"});
        row("the rest of a purchase", false, {{"txtQty", "17"}}, {});
        row("what went back before", false, {{"txtQty", "18"}}, {tooMany});
        row("a slip of the finger", false, {{"txtQty", "5000000000"}}, {tooMany});
    }
    void aLineTakesWhatCanGoBack()
    {
        QFETCH(bool, isFree);
        QFETCH(Entries, entries);
        QFETCH(QStringList, told);
        storeNote();
        onNote("btnAdd", [&](DialogCreditNote* form) {
            enter(form, "txtSupplier", "S1");
            if (isFree) {
                QTest::keyClick(form, Qt::Key_F4);
                QTRY_VERIFY(inFront<QPushButton>(form, "btnAdd")->isVisible());
                onLine<DialogCreditNotePurchases>(form, "btnAdd", entries);
            } else {
                takeOlder(form);
                onLine<DialogCreditNoteInvoice>(form, "btnEdit", entries, told.isEmpty());
            }
            giveUp(form);
        });
        QCOMPARE(m_people->lastText(), words(told));
    }

    void anItemThatIsListedIsAskedFor()
    {
        onNote("btnAdd", [this](DialogCreditNote* form) {
            addFree(form, "2");
            m_people->answer(QMessageBox::No);
            addFree(form, "3");
            QCOMPARE(cells(form, 0).value(2), QString("2"));
            m_people->answer(QMessageBox::Yes);
            addFree(form, "4");
            QCOMPARE(cells(form, 0).value(2), QString("4"));
            QCOMPARE(m_people->lastTitle(), QString("Question"));
            QCOMPARE(m_people->lastText(),
                     QString("This item: Egg is already exist in the list. Do you want to update it "
                             "with this data?"));
            giveUp(form);
        });
    }

    void purchasesAreOfferedOfTheSupplierAlone()
    {
        onNote("btnAdd", [this](DialogCreditNote* form) {
            click(form, "btnSelectPurchases");
            QCOMPARE(m_people->lastTitle() + m_people->lastText(), QString("InfoPlease select a supplier"));
            enter(form, "txtSupplier", "S2");
            takePurchase(form, [](DialogSelectPurchases* offer) {
                QCOMPARE(rowsOf(offer), 0);
                press(offer, QDialogButtonBox::Ok);
                QVERIFY(offer->isVisible());
                giveUp(offer);
            });
            enter(form, "txtSupplier", "S1");
            takePurchase(form, [](DialogSelectPurchases* offer) {
                set(offer, "ddlStatus", "unp");
                click(offer, "btnSearch");
                QCOMPARE(cells(offer, 0).value(0) + QString::number(rowsOf(offer)), QString("NB-00011"));
                giveUp(offer);
            });
            giveUp(form);
        });
    }

private:
    /** Works on a new note's form, or that of the selected note, until it is closed, saved or given up. */
    void onNote(const char* button, const std::function<void(DialogCreditNote*)>& work)
    {
        onForm(button, work);
        choose(m_page.get(), 0);
    }

    /**
     * Types into the form of a line. A refused form is cancelled, and so is the next form that opens after a new line.
     */
    template <class Line>
    void onLine(DialogCreditNote* form, const char* button, const Entries& entries, bool isLast = false)
    {
        m_people->expect<Line>([entries](Line* line) {
            enterAll(line, entries);
            press(line, QDialogButtonBox::Ok);
        });
        if (!isLast)
            m_people->expect<Line>([](Line* line) { giveUp(line); });
        click(form, button);
        bringToFront(form);
    }

    void takePurchase(DialogCreditNote* form, const std::function<void(DialogSelectPurchases*)>& choosing)
    {
        QTest::keyClick(form, Qt::Key_F3);
        QTRY_VERIFY(form->findChild<QPushButton*>("btnSelectPurchases")->isVisible());
        m_people->expect<DialogSelectPurchases>([choosing](DialogSelectPurchases* offer) {
            bringToFront(offer);
            choosing(offer);
        });
        click(form, "btnSelectPurchases");
        bringToFront(form);
    }

    void takeOlder(DialogCreditNote* form)
    {
        takePurchase(form, [](DialogSelectPurchases* offer) {
            choose(offer, 1);
            QTest::keyClick(gridOf(offer), Qt::Key_Return);
        });
    }

    void addFree(DialogCreditNote* form, const QString& quantity)
    {
        QTest::keyClick(form, Qt::Key_F4);
        QTRY_VERIFY(inFront<QPushButton>(form, "btnAdd")->isVisible());
        onLine<DialogCreditNotePurchases>(form, "btnAdd",
                                          {{"txtCode", "EGG"}, {"txtUnitPrice", "50"}, {"txtQty", quantity}});
    }

    /** Three of the older purchase's twenty go back. */
    void storeNote()
    {
        onNote("btnAdd", [this](DialogCreditNote* form) {
            enter(form, "txtSupplier", "s1");
            takeOlder(form);
            onLine<DialogCreditNoteInvoice>(form, "btnEdit", {{"txtQty", "3"}}, true);
            enter(form, "txtPaid", "270");
            press(form, QDialogButtonBox::Ok);
        });
    }

    static void set(QWidget* form, const char* choice, const QString& text)
    {
        form->findChild<QComboBox*>(choice)->setFocus();
        QTest::keyClicks(form->findChild<QComboBox*>(choice), text);
    }
    static QString words(const QStringList& told) { return told.isEmpty() ? QString() : told.join("\r\n") + "\r\n"; }
    QString dues()
    {
        return value("SELECT string_agg(concat_ws(' ', other_payment_amount, net_due_amount, status), ', ' ORDER BY "
                     "id) FROM acquisition");
    }
};

QTEST_MAIN(TestCreditNotePage)
#include "tst_credit_note_page.moc"
