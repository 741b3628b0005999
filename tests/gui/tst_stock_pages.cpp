#include "app/widgets/MoneyEdit.h"
#include "pos/inventory/adjustment/TabInventoryAdj.h"
#include "pos/inventory/balance/TabStokAwal.h"
#include "pos/inventory/stockcard/TabKartuStok.h"
#include "support/DatabaseTest.h"
#include "support/SalesRows.h"

namespace
{
const QDate today = QDate::currentDate();
} // namespace

/** The pages of the storeroom, worked on as a storekeeper does. */
class TestStockPages : public PageTest<AppListTab>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insert("stok_awal", "harga_amount=10, jumlah=7, createdtime='2026-01-02'");
    }

private slots:
    void anItemsBeginningBalanceIsTyped()
    {
        show<TabStokAwal>();
        QCOMPARE(rows(), QStringList{"RICE|Rice|7|Kilogram|Rp10.00|Rp70.00"});
        m_people->expect<DialogStokAwal>([](DialogStokAwal* form) {
            QCOMPARE(shown(form, "txtKode") + ' ' + shown(form, "txtNama"), QString("RICE Rice"));
            enter(form, "txtHarga", "60,000");
            enter(form, "txtJumlah", "100,000");
            press(form, QDialogButtonBox::Ok);
        });
        m_grid->selectRow(0);
        QTest::keyClick(m_grid, Qt::Key_F2);
        // The value exceeds the range of one amount and is shown completely.
        QTRY_COMPARE(rows(), QStringList{"RICE|Rice|100000|Kilogram|$60,000.00|$6,000,000,000.00"});
        QVERIFY2(m_people->finished(), qPrintable(m_people->texts().join('\n')));
        QVERIFY(!m_page->findChild<QPushButton*>("btnDelete")->isVisible());

        // The filter is an item's code, ignoring case.
        for (const auto& entry : {std::pair("rice", 1), std::pair("ric", 0)}) {
            enter(m_page.get(), "txtFilter", entry.first);
            click(m_page.get(), "btnSearch");
            QTRY_COMPARE(rows().size(), entry.second);
        }
        QVERIFY(!QApplication::activePopupWidget());
    }

    void aBalanceIsAddedOnceAnItem()
    {
        show<TabStokAwal>();
        m_people->expect<DialogStokAwal>([](DialogStokAwal* form) {
            typeInto(form, "txtKode", "ri");
            QTRY_VERIFY(QApplication::activePopupWidget());
            QTest::keyClick(form->windowHandle(), Qt::Key_Return);
            QTRY_COMPARE(shown(form, "txtNama"), QString("Rice"));
            QTRY_COMPARE(form->focusWidget(), box(form, "txtHarga"));
            QCOMPARE(static_cast<MoneyEdit*>(box(form, "txtHarga"))->value(), 10.0);
            enter(form, "txtJumlah", "30");
            press(form, QDialogButtonBox::Ok);
        });
        click(m_page.get(), "btnAdd");
        QTRY_COMPARE(rows(), QStringList{"RICE|Rice|30|Kilogram|$10.00|$300.00"});
        QVERIFY2(m_people->finished(), qPrintable(m_people->texts().join('\n')));
    }

    void whatIsNoBalanceIsRefused_data()
    {
        const auto row = addColumns<QStringList, QStringList>("entries", "complaints");
        const QString item = "Enter the item code";
        const QString cost = "Enter the unit cost";
        const QString qty = "Enter the qty of the item";
        row("nothing", {"", "", ""}, {item, cost, qty});
        row("an unknown item", {"RYE", "1", "1"}, {item});
        row("words", {"RICE", "much", "many"}, {cost, qty});
        row("too much", {"RICE", "99999999999", "1e300"},
            {"The amount is too large, the largest is 21,474,836",
             "Please enter a whole number from 0 to 999,999,999"});
        row("a debt and a piece", {"RICE", "-1", "1.5"},
            {"The amount must not be negative", "Please enter a whole number"});
    }
    void whatIsNoBalanceIsRefused()
    {
        refuses<TabStokAwal, DialogStokAwal>({"txtKode", "txtHarga", "txtJumlah"});
        QCOMPARE(stored("jumlah FROM stok_awal"), QString("7"));
    }

    void anAdjustmentIsKeyedIn()
    {
        show<TabInventoryAdj>();
        QCOMPARE(rows(), QStringList());
        m_people->expect<DialogInventoryAdj>([](DialogInventoryAdj* form) {
            enter(form, "txtKode", "RICE");
            QCOMPARE(shown(form, "txtNama") + ' ' + shown(form, "txtQtyOnHand"), QString("Rice 7"));
            QCOMPARE(shown(form, "txtSourceAccount"), QString("1-100"));
            QCOMPARE(labelled(form, "lblSource"), QString("Cash"));
            // The new quantity follows every key.
            auto* adjustment = box(form, "txtStok");
            adjustment->setFocus();
            for (const auto& step : {std::pair('-', ""), std::pair('1', "6"), std::pair('2', "-5")}) {
                QTest::keyClick(adjustment, step.first);
                QCOMPARE(shown(form, "txtNewQty"), QString(step.second));
            }
            auto* reason = form->findChild<QComboBox*>("ddlReason");
            QVERIFY(!box(form, "txtOtherReason")->isEnabled());
            reason->setFocus();
            QTest::keyClicks(reason, "O");
            QCOMPARE(reason->currentText(), QString("Other"));
            enter(form, "txtOtherReason", "Eaten by the cat's friends");
            press(form, QDialogButtonBox::Ok);
        });
        QTest::keyClick(m_grid, Qt::Key_F12);
        QTRY_COMPARE(rows(),
                     QStringList{"RICE|Rice|" + today.toString("d MMM yyyy") + "|7|-12|-5|Eaten by the cat's friends"});
        QVERIFY2(m_people->finished(), qPrintable(m_people->texts().join('\n')));
        QCOMPARE(stored("concat_ws(' ', tran_type, qty_in, qty_out, unit_price_amount, no, trans_date = current_date) "
                        "FROM item_history"),
                 QString("3 0 12 10 t"));
        QCOMPARE(stored("source_acct_code FROM stock_take"), QString("1-100"));
    }

    void aCountOnADayOfTradeIsOfferedTheNextDay_data()
    {
        const auto row = addColumns<int, int, int>("answer", "days", "tomorrow");
        // Seven on hand, three sold, five counted.
        row("the next day", QMessageBox::Yes, 1, 5);
        row("this day all the same", QMessageBox::No, 0, 2);
        row("back to the form", QMessageBox::Cancel, -1, 4);
    }
    void aCountOnADayOfTradeIsOfferedTheNextDay()
    {
        FETCH(int, answer, days, tomorrow);
        insertSale(*m_database, {"", "TRD", 100, 100, 0, 1, today});
        run("UPDATE invoice_detail SET qty = 3");
        show<TabInventoryAdj>();
        m_people->answer(QMessageBox::StandardButton(answer));
        m_people->expect<DialogInventoryAdj>([answer](DialogInventoryAdj* form) {
            enter(form, "txtKode", "rice");
            enter(form, "txtStok", "1");
            press(form, QDialogButtonBox::Ok);
            QCOMPARE(form->isVisible(), answer == QMessageBox::Cancel);
            form->reject();
        });
        click(m_page.get(), "btnAdd");
        QTRY_VERIFY(m_people->finished());
        QVERIFY2(m_people->lastText().contains("0 of this item were bought, 3 sold and 0 returned"),
                 qPrintable(m_people->lastText()));
        QCOMPARE(stored("coalesce(max(tanggal - current_date), -1) FROM stock_take").toInt(), days);
        EntityItem rice;
        rice.setId(1);
        QCOMPARE(service<BusinessInventory>("Inventory")->getQuantityOnHand(&rice, today.addDays(1)), tomorrow);
    }

    void theQuantityBeforeFollowsTheDate()
    {
        for (const int days : {0, -10})
            insertDineOrder(*m_database, {{2, 15}}, today.addDays(days));
        insert("stock_take", "tanggal=current_date - 5, qty=20, qty_before=7, qty_adj=13, source_acct_code='1-100'");
        show<TabInventoryAdj>();
        m_people->expect<DialogInventoryAdj>([](DialogInventoryAdj* form) {
            enter(form, "txtKode", "rice");
            QCOMPARE(shown(form, "txtKode") + ' ' + shown(form, "txtQtyOnHand"), QString("rice 20"));
            enter(form, "txtStok", "4");
            auto* date = form->findChild<QDateEdit*>("dateQtyOnHand");
            const auto before = [&](int days) {
                date->setDate(today.addDays(days));
                return shown(form, "txtQtyOnHand") + " > " + shown(form, "txtNewQty");
            };
            QCOMPARE(before(-6), QString("7 > 11"));
            QCOMPARE(before(-5), QString("20 > 24"));
            // Another code clears the values of the former item.
            typeInto(form, "txtKode", "X");
            QCOMPARE(shown(form, "txtNama") + shown(form, "txtQtyOnHand") + shown(form, "txtNewQty"), QString());
            form->reject();
        });
        click(m_page.get(), "btnAdd");
        QTRY_VERIFY2(m_people->finished(), qPrintable(m_people->texts().join('\n')));
    }

    void whatIsNoAdjustmentIsRefused_data()
    {
        const auto row = addColumns<QStringList, QStringList>("entries", "complaints");
        const QString item = "Enter the item code";
        const QString qty = "Enter the qty adjustment of the item";
        row("nothing", {"", "", ""}, {item, qty, "Select GL Source Account"});
        row("by nothing", {"RICE", "0", "1-100"}, {qty});
        row("by words", {"RICE", "few", "1-100"}, {qty});
        row("by a piece", {"RICE", "-0.5", "1-100"}, {"Please enter a whole number"});
        row("to more than can be counted", {"RICE", "999999999", "1-100"}, {"The new qty is more than can be counted"});
        row("an account that nobody has", {"RICE", "3", "9-999"}, {"Select a valid GL Source Account"});
    }
    void whatIsNoAdjustmentIsRefused()
    {
        refuses<TabInventoryAdj, DialogInventoryAdj>({"txtKode", "txtStok", "txtSourceAccount"});
        QCOMPARE(stored("count(*) FROM stock_take"), QString("0"));
    }

    void aWrongAdjustmentIsDeletedAndNeverEdited()
    {
        run("INSERT INTO stock_take (id, item_id, tanggal, qty, qty_before, qty_adj, source_acct_code, version)"
            " SELECT n, 1, date '2026-3-1' + n, n, 0, n, '1-100', 1 FROM generate_series(1, 3) n");
        for (int id = 1; id <= 3; ++id)
            insert("item_history", QString("tran_type=3, tran_id=%1").arg(id));
        show<TabInventoryAdj>();
        m_grid->selectRow(1);
        QTest::keyClick(m_grid, Qt::Key_F2);
        emit m_grid->doubleClicked(m_grid->currentIndex());
        m_people->answer(QMessageBox::Yes);
        click(m_page.get(), "btnDelete");
        QTRY_COMPARE(rows().size(), 2);
        QCOMPARE(m_people->texts(), QStringList{"Are you sure you want to delete this item: Rice ?"});
        QCOMPARE(m_people->lastTitle(), QString("Delete"));
        QCOMPARE(stored("string_agg(tran_id::text, ' ' ORDER BY id) FROM item_history"), QString("1 3"));
        QVERIFY(m_people->finished());
    }

    void theStockCardTellsAnItemsMonth()
    {
        const QDate first(today.year(), today.month(), 1);
        run("INSERT INTO item_history (trans_date, item_id, qty_in, qty_out, qty_remain, unit_price_currency, "
            "unit_price_amount, tran_type, tran_id, no, version) SELECT date '" +
            first.toString(Qt::ISODate) +
            "' + day, 1, coming, going, 0, 'Rp', 10, type, 1, no, 1 FROM (VALUES (-1, 50, 0, 1, 'PU-0'), "
            "(0, 0, 5, 4, 'CN-1'), (0, 20, 0, 1, 'PU-1'), (0, 0, 30, 3, NULL), (0, 1, 0, 9, 'X')) "
            "AS moved(day, coming, going, type, no)");
        show<TabKartuStok>();
        const auto total = [this](const char* name) { return m_page->findChild<QLabel*>(name)->text(); };
        QCOMPARE(rows(), QStringList());
        QCOMPARE(total("lblCount") + '/' + total("lblTotalIn") + '/' + total("lblSaldo"), QString("0 Items/0/0"));

        typeInto(m_page.get(), "txtItem", "ric");
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(m_page->windowHandle(), Qt::Key_Return);
        const QString day = first.toString("d MMM yyyy");
        // Movements before the period are not carried forward.
        QTRY_COMPARE(rows(), (QStringList{"|Begining Balance|2 Jan 2026|7|0|7", "CN-1|Credit Note|" + day + "|0|5|2",
                                          "PU-1|Purchase|" + day + "|20|0|22", "|Adjustment|" + day + "|0|30|-8",
                                          "X|None|" + day + "|1|0|-7"}));
        QCOMPARE(total("lblCount") + '/' + total("lblTotalIn") + '/' + total("lblSaldo"), QString("5 Items/28/-7"));
        QCOMPARE(m_grid->columnWidth(0), 130);
        QCOMPARE(m_grid->columnWidth(1), 200);

        m_page->findChild<QDateEdit*>("dateFrom")->setDate(first.addDays(-1));
        m_page->findChild<QDateEdit*>("dateTo")->setDate(first.addDays(-1));
        click(m_page.get(), "btnRefresh");
        QCOMPARE(rows().mid(1), QStringList{"PU-0|Purchase|" + first.addDays(-1).toString("d MMM yyyy") + "|50|0|57"});
        // An unknown code finds no item; an imported item may have no beginning balance.
        enter(m_page.get(), "txtItem", "RYE");
        click(m_page.get(), "btnRefresh");
        QCOMPARE(rows(), QStringList());
        run("DELETE FROM stok_awal");
        enter(m_page.get(), "txtItem", "rice");
        QCOMPARE(rows().value(0), QString("|Begining Balance||0|0|0"));
        QCOMPARE(m_people->texts(), QStringList());

        run("ALTER TABLE item_history RENAME TO elsewhere");
        click(m_page.get(), "btnRefresh");
        QCOMPARE(m_people->lastTitle(), QString("Error"));
    }

private:
    /** What the row enters into a new form's boxes is refused with the row's complaints. */
    template <class Page, class Form>
    void refuses(const QStringList& boxes)
    {
        FETCH(QStringList, entries, complaints);
        show<Page>();
        onForm("btnAdd", [&, entries = entries, complaints = complaints](Form* form) {
            for (int i = 0; i < boxes.size(); ++i)
                enter(form, boxes.at(i), entries.at(i));
            press(form, QDialogButtonBox::Ok);
            QCOMPARE(m_people->lastText(), complaints.join("\r\n") + "\r\n");
            QVERIFY(form->isVisible());
            giveUp(form);
        });
    }
    /** The grid's cells, each row's parted by bars. */
    [[nodiscard]] QStringList rows() const
    {
        QStringList result;
        for (int row = 0; row < m_grid->model()->rowCount(); ++row)
            result.append(cells(m_page.get(), row).join('|'));
        return result;
    }

    QString stored(const QString& expression) { return value("SELECT " + expression); }
};

QTEST_MAIN(TestStockPages)
#include "tst_stock_pages.moc"
