#include "pos/purchasing/purchase/DialogPurchases.h"
#include "pos/purchasing/purchase/TabPurchaseDetail.h"
#include "pos/purchasing/purchase/TabPurchaseDetailPO.h"
#include "pos/purchasing/purchase/TabPurchases.h"
#include "pos/purchasing/purchaseorder/DialogPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/DialogSelectPO.h"
#include "pos/purchasing/purchaseorder/TabPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/TabPurchaseOrderDetail.h"
#include "support/DatabaseTest.h"

/** The storekeeper at the pages of purchases and purchase orders, with keyboard and mouse. */
class TestPurchases : public PageTest<QWidget>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
        insertItem(*m_database, 2, "EGG", "Eggs");
        insert("bank", "id=2, kode='2000', nama='Accounts Payable', account_type=2, active=true");
        insert("supplier", "id=2, kode='S2', nama='Farm'");
    }

private slots:
    void aPurchaseIsEnteredPaidAndListed()
    {
        show<TabPurchases>();
        onForm("btnAdd", [this](DialogPurchases* form) {
            QCOMPARE(form->windowTitle(), QString("Purchase/Receive Inventory Form"));
            enter(form, "txtSupplier", "s1");
            QCOMPARE(shown(form, "txtSupplierName") + shown(form, "txtSupplierAddress") +
                         shown(form, "txtSupplierPhone"),
                     QString("MarketStreet 11"));
            // Without a sub total there is no percentage: the typed one stays.
            enter(form, "txtDiscPerc", "5");
            enter(form, "txtDiscount", "7");
            QCOMPARE(shown(form, "txtDiscPerc"), QString("5"));
            auto* lines = form->findChild<TabPurchaseDetail*>();
            addLines<DialogPurchaseDetail>(
                lines, {{{"txtCode", "rice"}, {"txtQty", "3"}},
                        {{"txtCode", "EGG"}, {"txtQty", "6"}, {"txtUnitPrice", "20"}, {"txtDiscPerc", "10"}}});
            QCOMPARE(cells(lines, 1), (QStringList{"EGG", "Eggs", "6", "Kilogram", "Rp20,00", "Rp12,00", "Rp108,00"}));
            QCOMPARE(shown(form, "txtSubTotal"), QString("138,00"));
            // A listed item asks, and Yes replaces its figures.
            m_people->answer(QMessageBox::Yes);
            addLines<DialogPurchaseDetail>(lines, {{{"txtCode", "RICE"}, {"txtQty", "10"}}});
            QCOMPARE(m_people->lastText(),
                     QString("This item: Rice is already in the list. Do you want to update it with this data?"));
            enter(form, "txtDiscount", "8");
            QCOMPARE(shown(form, "txtDiscPerc"), QString("3,846"));
            enter(form, "txtTaxPerc", "10");
            QCOMPARE(shown(form, "txtGrandTotal"), QString("221,00"));
            enter(form, "txtTax", "20");
            QCOMPARE(shown(form, "txtGrandTotal"), QString("220,00"));
            enter(form, "txtPaid", "300");
            QCOMPARE(labelled(form, "lblNetDue"), QString("Change :"));
            enter(form, "txtPaid", "100");
            QCOMPARE(labelled(form, "lblNetDue") + shown(form, "txtNetDue"), QString("Less :-120,00"));
            const QString payable = "2000";
            // A note warns that money from other accounts is missing in the day's close.
            const auto* note = form->findChild<QLabel*>("lblNote");
            for (const QString& account : {QString("1-100"), payable}) {
                enter(form, "txtAPAccount", account);
                QCOMPARE(note->isVisible() && note->text().contains("day's close"), account == payable);
            }
            enter(form, "txtInvoiceNo", "FAK-1");
            save(form);
        });
        QTRY_COMPARE(cells(m_page.get(), 0).mid(1, 2), (QStringList{"FAK-1", "Market"}));
        QCOMPARE(cells(m_page.get(), 0).mid(4), (QStringList{"Partially Paid", "Rp220,00", "Rp120,00"}));
        QCOMPARE(label("lblCount"), QString("1 items"));
        QCOMPARE(value("select concat_ws(' ', no, apply_to_po, po_id, disc_perc, tax_amount, amount_paid_amount, "
                       "net_due_amount, status, bank_id) from acquisition"),
                 QString("NB-0007 f 3.846 20 100 120 3 2"));
        QCOMPARE(value("select string_agg(concat_ws(' ', qty, total_price_amount), ', ' order by id) from "
                       "acquisition_detail"),
                 QString("10 100, 6 108"));

        // Opened again it shows what was saved; another supplier, a line less, and paid to the last.
        choose(m_page.get(), 0);
        onForm("btnEdit", [this](DialogPurchases* form) {
            QCOMPARE(shown(form, "txtPurchaseNo") + shown(form, "txtGrandTotal"), QString("NB-0007220,00"));
            enter(form, "txtSupplier", "S2");
            auto* lines = form->findChild<TabPurchaseDetail*>();
            choose(lines, 1);
            m_people->answer(QMessageBox::Yes);
            click(lines, "btnDelete");
            QCOMPARE(m_people->lastText(), QString("Are you sure you want to delete this item: Eggs ?"));
            editLine<DialogPurchaseDetail>(lines, 0, {{"txtQty", "2"}});
            QCOMPARE(shown(form, "txtGrandTotal"), QString("32,00"));
            enter(form, "txtPaid", "32");
            save(form);
        });
        QTRY_COMPARE(cells(m_page.get(), 0).mid(4), (QStringList{"Fully Paid", "Rp32,00", "Rp0,00"}));
        QCOMPARE(value("select string_agg(concat_ws(' ', item_id, qty_in), ', ') from item_history"), QString("1 2"));
    }

    void whatIsMissingIsTold_data()
    {
        const auto row = addColumns<Entries, QString, QString>("entries", "change", "told");
        row("nothing at all", {{"txtSupplier", " "}, {"txtAPAccount", " "}}, "",
            "Select a supplier|Please select an Accounts Payable");
        row("a supplier that nobody knows", {{"txtSupplier", "S9"}}, "", "Select a supplier");
        row("a supplier deleted meanwhile", {}, "DELETE FROM supplier WHERE kode = 'S1'", "Select a supplier");
        row("an account that nobody knows", {{"txtAPAccount", "77"}}, "", "Please select a valid Accounts Payable");
        row("an account deleted meanwhile", {}, "DELETE FROM bank WHERE id = 2",
            "Please select a valid Accounts Payable");
        row("a discount above all", {{"txtDiscount", "31"}}, "",
            "The discount should not be larger than the sub total");
        row("no number", {{"txtTax", "a lot"}}, "", "Please enter a number");
    }
    void whatIsMissingIsTold()
    {
        QFETCH(Entries, entries);
        FETCH(QString, change, told);
        show<TabPurchases>();
        onForm("btnAdd", [&](DialogPurchases* form) {
            enter(form, "txtSupplier", "S1");
            save(form);
            QCOMPARE(m_people->lastTitle() + m_people->lastText(), QString("ErrorPlease add one or more items\r\n"));
            addLines<DialogPurchaseDetail>(form->findChild<TabPurchaseDetail*>(),
                                           {{{"txtCode", "RICE"}, {"txtQty", "3"}}});
            enterAll(form, entries);
            if (!change.isEmpty())
                run(change);
            save(form);
            QCOMPARE(m_people->lastText(), told.replace('|', "\r\n") + "\r\n");
            QVERIFY(form->isVisible());
            giveUp(form);
        });
        QCOMPARE(value("select count(*) from acquisition"), QString("0"));
    }

    void aLineTakesNoNonsense_data()
    {
        const auto row = addColumns<Entries, QString>("entries", "told");
        const QString price = "Enter the purchase price of the item\r\n";
        const QString qty = "Enter the qty of the item\r\n";
        row("nothing", {}, "Enter the item code\r\n" + price + qty);
        row("no price", {{"txtCode", "RICE"}, {"txtUnitPrice", "0"}, {"txtQty", "1"}}, price);
        row("less than nothing", {{"txtCode", "RICE"}, {"txtUnitPrice", "-5"}, {"txtQty", "-1"}}, price + qty);
        row("a huge quantity", {{"txtCode", "RICE"}, {"txtQty", "99999999999"}},
            "This quantity is too large for one line\r\n");
        row("a huge amount", {{"txtCode", "RICE"}, {"txtUnitPrice", "900000000"}, {"txtQty", "9"}},
            "This amount is too large for one line. Please enter a smaller qty\r\n");
    }
    void aLineTakesNoNonsense()
    {
        QFETCH(Entries, entries);
        show<TabPurchases>();
        onForm("btnAdd", [&](DialogPurchases* form) {
            m_people->expect<DialogPurchaseDetail>([entries, this](DialogPurchaseDetail* line) {
                enterAll(line, entries);
                bringToFront(line);
                confirm(line, "txtQty");
                QTEST(m_people->lastText(), "told");
                QVERIFY(line->isVisible());
                giveUp(line);
            });
            click(form->findChild<TabPurchaseDetail*>(), "btnAdd");
            giveUp(form);
        });
    }

    void anOrderIsReceived_data()
    {
        const auto row =
            addColumns<int, QString, int, QString, QString>("rice", "meanwhile", "answer", "told", "order");
        const QString question = "You have received all items from Purchase Order No: PO-1. Do you want to close this "
                                 "Purchase Order now?";
        const int none = QMessageBox::NoButton;
        row("in full, and closed", 3, "", QMessageBox::Yes, question, "6 2");
        row("in full, left open", 4, "", QMessageBox::No, question, "2 1");
        row("short: open without a question", 2, "", none, "", "2 1");
        row("closed by somebody else", 3, "UPDATE purchase_order SET status_id = 6, version = 2", none, "", "6 2");
    }
    void anOrderIsReceived()
    {
        FETCH(int, rice, answer);
        FETCH(QString, meanwhile, told);
        insertOrder(1);
        insertOrder(2, 6);
        show<TabPurchases>();
        onForm("btnAdd", [&](DialogPurchases* form) {
            auto* lines = form->findChild<TabPurchaseDetailPO*>();
            QTest::keyClick(form, Qt::Key_F4);
            QTRY_VERIFY(lines->isVisible());
            click(lines, "btnSelectPO");
            QCOMPARE(m_people->lastTitle() + m_people->lastText(), QString("InfoPlease select a supplier"));
            enter(form, "txtSupplier", "S1");
            takeOrder(form);
            QCOMPARE(cells(lines, 0),
                     (QStringList{"RICE", "Rice", "3", "0", "Kilogram", "Rp10,00", "Rp0,00", "Rp30,00"}));
            save(form);
            QCOMPARE(m_people->lastText(), QString("Please enter a valid qty for this item Rice\r\n"
                                                   "Please enter a valid qty for this item Eggs\r\n"));
            editLine<DialogPurchaseDetailPO>(lines, 0, {{"txtQty", QString::number(rice)}});
            editLine<DialogPurchaseDetailPO>(lines, 1, {{"txtQty", "6"}});
            // Choosing the order again keeps the input.
            takeOrder(form);
            QCOMPARE(cells(lines, 0).mid(2, 2), (QStringList{"3", QString::number(rice)}));
            if (!meanwhile.isEmpty())
                run(meanwhile);
            m_people->clear();
            if (answer != QMessageBox::NoButton)
                m_people->answer(QMessageBox::StandardButton(answer));
            save(form);
        });
        QTRY_COMPARE(m_people->texts(), told.isEmpty() ? QStringList() : QStringList(told));
        QTEST(value("select concat_ws(' ', status_id, version) from purchase_order where id = 1"), "order");
        QCOMPARE(value("select concat_ws(' ', apply_to_po, po_id, grandtotal_amount) from acquisition"),
                 QString("t 1 %1").arg(10 * rice + 60));
        QCOMPARE(value("select string_agg(concat_ws(' ', qty_ordered, qty, po_detail_id), ', ' order by id) from "
                       "acquisition_detail"),
                 QString("3 %1 1, 6 6 2").arg(rice));
    }

    void anOrderOfAnotherSupplierIsNotTakenAlong()
    {
        insertOrder(1);
        show<TabPurchases>();
        onForm("btnAdd", [this](DialogPurchases* form) {
            enter(form, "txtSupplier", "S1");
            takeOrder(form);
            auto* lines = form->findChild<TabPurchaseDetailPO*>();
            for (int row : {0, 1})
                editLine<DialogPurchaseDetailPO>(lines, row, {{"txtQty", "1"}});
            enter(form, "txtSupplier", "S2");
            save(form);
            QCOMPARE(m_people->lastText(), QString("The purchase order is of another supplier\r\n"));
            giveUp(form);
        });
    }

    void anOrderIsPlacedAndChanged()
    {
        show<TabPurchaseOrder>();
        onForm("btnAdd", [this](DialogPurchaseOrder* form) {
            QTest::keyClick(form, Qt::Key_F4);
            QTRY_VERIFY(form->findChild<QPlainTextEdit*>("txtNotes")->hasFocus());
            QTest::keyClicks(form->findChild<QPlainTextEdit*>("txtNotes"), "by Friday");
            save(form);
            QCOMPARE(m_people->lastText(), QString("Select a supplier\r\nInsert one or more item\r\n"));
            enter(form, "txtSupplier", "S1");
            addLines<DialogPurchaseOrderDetail>(form->findChild<TabPurchaseOrderDetail*>(),
                                                {{{"txtCode", "RICE"}, {"txtQty", "5"}}});
            enter(form, "txtPaid", "20");
            save(form);
        });
        QTRY_COMPARE(cells(m_page.get(), 0).mid(3), (QStringList{"Market", "Sent to supplier", "Rp50,00"}));
        QCOMPARE(label("lblCount"), QString("1 Items"));
        // At midnight, so that the order is in the list of its day.
        QCOMPARE(value("select concat_ws(' ', no, deposit_amount, purchase_date::time, ship_date::time, note) from "
                       "purchase_order"),
                 QString("PO-0007 20 00:00:00 00:00:00 by Friday"));
        QCOMPARE(value("select count(*) from item_history"), QString("0"));

        run("UPDATE purchase_order SET status_id = 1");
        choose(m_page.get(), 0);
        for (const char* status : {"", "Order Changed"}) {
            onForm("btnEdit", [status](DialogPurchaseOrder* form) {
                auto* box = form->findChild<QComboBox*>("ddlStatus");
                box->setFocus();
                QTest::keyClicks(box, status);
                save(form);
            });
            // A status that cannot be chosen stays until another one is.
            QTRY_COMPARE(cells(m_page.get(), 0).value(4), QString(*status ? "Changed" : "None"));
        }
    }

    void theListOffersItsFilters()
    {
        for (int status = 1; status <= 3; ++status)
            insertPurchase(status);
        run("UPDATE acquisition SET supplier_id = 2 WHERE id = 3");
        show<TabPurchases>();
        const QDate today = QDate::currentDate();
        QCOMPARE(m_page->findChild<QDateEdit*>("dateFrom")->date(), QDate(today.year(), today.month(), 1));
        QCOMPARE(rowsOf(m_page.get()), 3);
        QSet<QRgb> colours;
        for (int row = 0; row < 3; ++row)
            colours.insert(m_grid->model()->index(row, 0).data(Qt::BackgroundRole).value<QBrush>().color().rgb());
        QCOMPARE(colours.size(), 3);
        enter(m_page.get(), "txtSupplier", "s2");
        click(m_page.get(), "btnSearch");
        QTRY_COMPARE(rowsOf(m_page.get()), 1);
        QCOMPARE(cells(m_page.get(), 0).mid(2, 3).join(' ').section(' ', 0, 0), QString("Farm"));
        box(m_page.get(), "txtSupplier")->clear();
        m_page->findChild<QComboBox*>("ddlFilter")->setFocus();
        QTest::keyClicks(m_page->findChild<QComboBox*>("ddlFilter"), "Inv");
        enter(m_page.get(), "txtFilter", "f-2");
        click(m_page.get(), "btnSearch");
        QTRY_COMPARE(rowsOf(m_page.get()), 1);
        QCOMPARE(cells(m_page.get(), 0).value(1), QString("F-2"));
    }

private:
    /** Types lines into the forms opened by the Add button, and cancels the last form. */
    template <class Line>
    void addLines(QWidget* page, const QList<Entries>& lines)
    {
        for (const Entries& entries : lines)
            expectLine<Line>(entries);
        m_people->expect<Line>([](Line* line) { giveUp(line); });
        click(page, "btnAdd");
        bringToFront(page);
    }

    template <class Line>
    void editLine(QWidget* page, int row, const Entries& entries)
    {
        choose(page, row);
        expectLine<Line>(entries);
        click(page, "btnEdit");
        bringToFront(page);
    }

    template <class Line>
    void expectLine(const Entries& entries)
    {
        m_people->expect<Line>([entries](Line* line) {
            enterAll(line, entries);
            confirm(line, "txtQty");
        });
    }

    void takeOrder(DialogPurchases* form, int row = 0)
    {
        m_people->expect<DialogSelectPO>([row](DialogSelectPO* orders) {
            bringToFront(orders);
            choose(orders, row);
            QTest::keyClick(gridOf(orders), Qt::Key_Return);
        });
        QTest::keyClick(form, Qt::Key_F4);
        auto* page = form->findChild<TabPurchaseDetailPO*>();
        QTRY_VERIFY(page->isVisible());
        click(page, "btnSelectPO");
        bringToFront(form);
    }

    static void save(QWidget* form) { confirm(form, "txtSupplier"); }
    void insertOrder(int id, int status = 2)
    {
        insert("purchase_order",
               QString("id=%1, no='PO-%2', bank_id=2, status_id=%3, sub_total_amount=120, grandtotal_amount=120")
                   .arg(id)
                   .arg(id)
                   .arg(status));
        for (const auto& item : {1, 2})
            insert("purchase_order_detail",
                   QString("purchase_order_id=%1, item_id=%2, jumlah=%3, price_amount=10, total_price_amount=%4")
                       .arg(id)
                       .arg(item)
                       .arg(3 * item)
                       .arg(30 * item));
    }

    void insertPurchase(int id)
    {
        insert("acquisition",
               QString("id=%1, no='NB-%2', invoice_no='F-%3', bank_id=2, status=%4, sub_total_amount=30, "
                       "grandtotal_amount=30, net_due_amount=30")
                   .arg(id)
                   .arg(id)
                   .arg(id)
                   .arg(id));
        insert("acquisition_detail",
               QString("acquisition_id=%1, qty=3, qty_ordered=0, price_each_amount=10, total_price_amount=30, "
                       "po_detail_id=NULL")
                   .arg(id));
    }
};

QTEST_MAIN(TestPurchases)
#include "tst_purchases.moc"
