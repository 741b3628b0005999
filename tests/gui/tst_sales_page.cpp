#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/fastfood/DialogFastFood.h"
#include "zavel/list/TabDaftarPenjualan.h"
#include "zavel/list/TableModelDaftarPenjualan.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DialogBayarBawaPulang.h"

#include <malloc.h>

using Sales = BusinessPenjualan;

/** The page of all sales: what it shows, how it narrows, and what can be done with a sale from there. */
class TestSalesPage : public PageTest<TabDaftarPenjualan>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        run("TRUNCATE users CASCADE");
        insertSeller(*m_database, 1, "ann");
        insertSeller(*m_database, 77, "waiter");
    }

private slots:
    void aRowTellsTheWholeSale()
    {
        SaleRow sale{"TRF-1", "TRF", 900, 500, 100, 3, QDate::currentDate(), "Mary"};
        sale.member = sale.employee = 1;
        insertSale(*m_database, sale);
        insertSale(*m_database, {"TRD-OLD"});
        show();
        QCOMPARE(headersOf(*m_grid->model()).join('|'),
                 QString("No|Date|Type|User|Member Code|Guest Name|Waitress|Invoice Total|Cash|Credit|"
                         "Net Due|Status"));
        QCOMPARE(cells(m_page.get(), 0).join('|'),
                 QString("TRF-1|%1|Fast Food|ann|M1|Mary|Ann|Rp900.00|Rp500.00|Rp100.00|Rp300.00|"
                         "Partially Paid")
                     .arg(QDate::currentDate().toString("d MMM yyyy")));
        QVERIFY(!m_grid->model()->index(0, 11).data(Qt::DecorationRole).value<QIcon>().isNull());
        // Only today's sales are asked for at first.
        QCOMPARE(the<QLabel>("lblCount")->text(), QString("1 Items"));
    }

    void everyFilterNarrowsTheList_data()
    {
        addColumns<QString, QString, QString>("box", "entry", "found");
        const auto row = [](const char* box, const char* entry, const char* found) {
            addRow(qPrintable(QString("%1 %2").arg(box, entry)), box, entry, found);
        };
        row("txtInvNo", "d1", "D1");
        row("ddlStatus", "All", "H1 F1 D2 D1");
        row("ddlStatus", "Fully Paid", "F1 D1");
        row("ddlStatus", "Partially Paid", "H1");
        row("ddlStatus", "Unpaid", "D2");
        row("ddlPayment", "Cash", "H1 F1 D2 D1");
        row("ddlPayment", "Other", "H1");
        row("txtTable", "T1", "D1");
        row("txtTable", "T9", "");
        row("txtMember", "M1", "H1 F1");
        row("txtName", "ary", "F1");
        row("txtEmployee", "E1", "F1 D1");
        row("txtAgent", "A1", "D2");
        row("dateFrom", "-1", "H1 F1 D2 D1 OLD");
        row("dateTo", "-1", "");
    }
    void everyFilterNarrowsTheList()
    {
        FETCH(QString, box, entry);
        const QDate today = QDate::currentDate();
        insert("meja", "id=2, kode='T2', nama='Door'");
        SaleRow sale{"D1", "TRD", 100, 100, 0, 1, today};
        sale.employee = 1;
        insertSale(*m_database, sale);
        sale = {"D2", "TRD", 100, 0, 0, 2, today, "Joe", 2};
        sale.agent = 1;
        insertSale(*m_database, sale);
        sale = {"F1", "TRF", 100, 100, 0, 1, today, "Mary", 0, 1, 1};
        insertSale(*m_database, sale);
        insertSale(*m_database, {"H1", "TRP", 100, 0, 50, 3, today, "Joe", 0, 1});
        insertSale(*m_database, {"OLD", "TRD", 100, 100, 0, 1, today.addDays(-1), "", 2});
        show();
        const QByteArray name = box.toLatin1();
        if (auto* combo = the<QComboBox>(name.constData())) {
            combo->setCurrentText(entry);
            QCOMPARE(combo->currentText(), entry);
        } else if (auto* date = the<QDateEdit>(name.constData())) {
            date->setDate(today.addDays(entry.toInt()));
        } else {
            the<QLineEdit>(name.constData())->setFocus();
            QTest::keyClicks(the<QLineEdit>(name.constData()), entry);
        }
        click("btnSearch");
        QTEST(numbers(), "found");
    }

    void aMemberIsPickedFromTheSuggestions()
    {
        insertSale(*m_database, {"F1", "TRF", 100, 100, 0, 1, QDate::currentDate(), "", 0, 1});
        insertSale(*m_database, {"F2", "TRF", 100, 100, 0, 1, QDate::currentDate()});
        show();
        auto* member = the<QLineEdit>("txtMember");
        member->setFocus();
        QTest::keyClicks(member, "guest");
        // The keys are sent to the window, like real ones: the open list gets them, not the page's buttons.
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(m_page->windowHandle(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QVERIFY(m_page->isVisible());
        QTest::keyClicks(member, "s");
        QTest::keyClick(member, Qt::Key_Backspace);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(m_page->windowHandle(), Qt::Key_Return);
        QTRY_COMPARE(member->text(), QString("M1"));
        click("btnSearch");
        QCOMPARE(numbers(), QString("F1"));
        // The selected member no longer filters when the box is empty.
        member->clear();
        click("btnSearch");
        QCOMPARE(numbers(), QString("F2 F1"));
    }

    void aLongListIsShownAtOnceAndReadOn()
    {
        const int all = 101000;
        insertManySales(*m_database, all);
        run("ANALYZE");
        show();
        the<QDateEdit>("dateFrom")->setDate(QDate::currentDate().addDays(-31));
        const auto label = [this] { return the<QLabel>("lblCount")->text(); };
        const auto rows = [this] { return m_grid->model()->rowCount(); };

        click("btnSearch");
        QCOMPARE(rows(), 500);
        QCOMPARE(label(), QString("500 Items so far, reading on (Esc stops)"));
        QTRY_VERIFY(rows() > 3000);
        QTest::keyClick(m_grid, Qt::Key_Escape);
        const int stopped = rows();
        QTest::qWait(50);
        QCOMPARE(rows(), stopped);
        QVERIFY2(label().startsWith(QString("%1 Items, back to ").arg(stopped)), qPrintable(label()));

        // Read again, the list finds the row that was current, wherever it is now.
        m_grid->selectRow(stopped - 1);
        const QString current = cell(stopped - 1, 0);
        const size_t before = mallinfo2().uordblks;
        m_people->answer(QMessageBox::No);
        click("btnSearch");
        QTRY_COMPARE(cell(m_grid->currentIndex().row(), 0), current);
        QTRY_COMPARE_WITH_TIMEOUT(m_people->texts().size(), 1, 30000);
        QVERIFY2(m_people->texts().first().startsWith("100,500 rows have been read, back to "),
                 qPrintable(m_people->texts().first()));
        QVERIFY(rows() >= 100000 && rows() < all);
        QVERIFY(label().endsWith("earlier ones are left out"));
        const size_t perRow = (mallinfo2().uordblks - before) / size_t(rows());
        QVERIFY2(perRow < 1024, qPrintable(QString("%1 bytes a row").arg(perRow)));

        m_people->answer(QMessageBox::Yes);
        click("btnSearch");
        QTRY_COMPARE_WITH_TIMEOUT(label(), QString("%1 Items").arg(all), 60000);
        // Not QCOMPARE, which would print a megabyte.
        QVERIFY(numbers() == value("SELECT string_agg(no, ' ' ORDER BY invoice_date DESC, id DESC) FROM invoice"));

        m_grid->sortByColumn(TableModelDaftarPenjualan::Total, Qt::DescendingOrder);
        QCOMPARE(cell(0, TableModelDaftarPenjualan::Total), QString("Rp247,500.00"));
    }

    void resetEmptiesTheFilters()
    {
        show();
        const QList<QLineEdit*> texts = m_page->findChildren<QLineEdit*>(QRegularExpression("^txt"));
        for (QLineEdit* box : texts)
            box->setText("x");
        the<QComboBox>("ddlStatus")->setCurrentIndex(2);
        the<QComboBox>("ddlPayment")->setCurrentIndex(1);
        the<QDateEdit>("dateFrom")->setDate(QDate(2020, 1, 1));
        the<QDateEdit>("dateTo")->setDate(QDate(2020, 1, 2));
        click("btnReset");
        for (const QLineEdit* box : texts) {
            if (box->isEnabled())
                QCOMPARE(box->text(), QString());
        }
        QCOMPARE(the<QComboBox>("ddlStatus")->currentText() + the<QComboBox>("ddlPayment")->currentText(),
                 QString("AllAll"));
        for (const char* date : {"dateFrom", "dateTo"})
            QCOMPARE(the<QDateEdit>(date)->date(), QDate::currentDate());
    }

    void aTablesPaymentIsOpenedAgain()
    {
        insertSale(*m_database, {"D1", "TRD", 900, 500, 0, 3, QDate::currentDate(), "Mary"});
        show();
        m_grid->selectRow(0);
        m_people->answer(QMessageBox::No);  // the bill
        m_people->answer(QMessageBox::Yes); // done with the table
        m_people->expect<DialogBayarMakanDitempat>([this](DialogBayarMakanDitempat* form) {
            const auto box = [form](const char* name) { return form->findChild<QLineEdit*>(name); };
            QCOMPARE(box("txtKode")->text() + ' ' + box("txtMeja")->text(), QString("D1 Window"));
            QCOMPARE(box("txtGrandTotal")->text(), QString("900.00"));
            box("txtPaid")->setText("1000");
            form->accept();
            QCOMPARE(box("txtNetDue")->text(), QString("100.00"));
            form->reject();
        });
        emit m_grid->doubleClicked(m_grid->currentIndex());
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(m_people->texts(),
                 (QStringList{"Do you want to print this invoice?", "Are you done with this table: Window ?"}));
        QTRY_COMPARE(cell(0, TableModelDaftarPenjualan::Status), QString("Fully Paid"));
        QCOMPARE(cell(0, TableModelDaftarPenjualan::NetDue), QString("(Rp100.00)"));
        QCOMPARE(count("makan_ditempat WHERE status = 6"), 1);
        QCOMPARE(count("invoice_detail WHERE total_amount = 900"), 1);
    }

    void aTakeAwaysPaymentIsOpenedAgain()
    {
        insertSale(*m_database, {"P1", "TRP", 900, 500, 0, 3, QDate::currentDate(), "Mary"});
        show();
        m_grid->selectRow(0);
        m_people->expect<DialogBayarBawaPulang>([](DialogBayarBawaPulang* form) {
            QCOMPARE(form->findChild<QLineEdit*>("txtKode")->text(), QString("P1"));
            form->findChild<QLineEdit*>("txtPaid")->setText("900");
            form->accept();
            form->reject();
        });
        click("btnEdit");
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(cell(0, TableModelDaftarPenjualan::Status), QString("Fully Paid"));
    }

    void aCounterSaleIsOpenedAgain()
    {
        insertSale(*m_database, {"F1", "TRF", 900, 900, 0, 1, QDate::currentDate(), "Mary"});
        show();
        m_grid->selectRow(0);
        const auto pay = [](const QString& amount, const QString& then) {
            return [amount, then](DialogFastFood* form) {
                QCOMPARE(form->findChild<QLineEdit*>("txtKode")->text(), QString("F1"));
                form->findChild<QLineEdit*>("txtPaid")->setText(amount);
                then == "save" ? form->accept() : form->reject();
            };
        };
        m_people->expect<DialogFastFood>(pay("500", "leave"));
        click("btnEdit");
        QVERIFY(m_people->finished());
        QCOMPARE(cell(0, TableModelDaftarPenjualan::Cash), QString("Rp900.00"));
        m_people->expect<DialogFastFood>(pay("400", "save"));
        click("btnEdit");
        QVERIFY(m_people->finished());
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(cell(0, TableModelDaftarPenjualan::Cash), QString("Rp400.00"));
        QCOMPARE(cell(0, TableModelDaftarPenjualan::Status), QString("Partially Paid"));
    }

    void aSaleWithoutItsLinkCannotBeOpened()
    {
        const int id = insertSale(*m_database, {"D1", "TRD", 100, 100, 0, 1, QDate::currentDate()});
        run("DELETE FROM invoice_makan_ditempat");
        show();
        m_grid->selectRow(0);
        click("btnEdit");
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(m_people->lastText(), QString("Can not find entity with id: %1").arg(id));
        QVERIFY(m_people->finished());
    }

    void aBusyMonthOpensInOneStatementIsReadInFewAndScrolls()
    {
        insertManySales(*m_database, 5000);
        show();
        the<QDateEdit>("dateFrom")->setDate(QDate::currentDate().addDays(-40));
        const StatementCount statements;
        click("btnSearch");
        QCOMPARE(m_grid->model()->rowCount(), 500);
        QCOMPARE(statements.count(), 1);
        QTRY_COMPARE(m_grid->model()->rowCount(), 5000);
        QVERIFY(statements.count() <= 4);
        const int sent = statements.count();
        const int perPage = m_grid->rowAt(m_grid->viewport()->height() - 1);
        m_grid->selectRow(0);
        for (int page = 0; m_grid->currentIndex().row() < 4999; ++page) {
            QVERIFY(page < 5000);
            QTest::keyClick(m_grid, Qt::Key_PageDown);
        }
        QVERIFY(perPage > 3);
        QVERIFY(m_grid->viewport()->rect().contains(m_grid->visualRect(m_grid->currentIndex()).center()));
        QCOMPARE(statements.count(), sent);
    }

private:
    template <class Widget>
    Widget* the(const char* name)
    {
        return m_page->findChild<Widget*>(name);
    }
    void click(const char* button) { ::click(m_page.get(), button); }
    [[nodiscard]] QString numbers() const { return column(TableModelDaftarPenjualan::No).join(' '); }
};

QTEST_MAIN(TestSalesPage)
#include "tst_sales_page.moc"
