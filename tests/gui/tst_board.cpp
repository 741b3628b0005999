#include "support/DatabaseTest.h"
#include "support/OrderKeys.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogMakanDitempat.h"
#include "zavel/dinein/TabMakanDitempat.h"
#include "zavel/dinein/TableModelMakanDitempat.h"
#include "zavel/service/BusinessPenjualan.h"

using Column = TableModelMakanDitempat::Column;

/** The board of tables: what it shows, and an order's life from the empty table to the empty table. */
class TestBoard : public PageTest<TabMakanDitempat>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_make = std::make_unique<Builders>();
        m_rice = m_make->item("RICE", "Fried rice", 25000);
        m_tea = m_make->item("TEA", "Iced tea", 5000);
        m_t1 = m_make->table("t1", "Terrace");
        m_t2 = m_make->table("t2", "Garden");
    }

private slots:
    void everyTableShowsItsOrdersOrThatItIsEmpty()
    {
        EntityMakanDitempat* moved = m_make->openOrder(m_t1, {m_make->line(m_rice, 2), m_make->line(m_tea, 1)}, "Ann");
        moved->moveTo(m_t2);
        auto* sales = service<BusinessPenjualan>("Sales");
        QVERIFY(sales->updateOrder(moved));
        m_make->openOrder(m_t2, {m_make->line(m_tea, 1)}, "Bob");
        EntityMakanDitempat* gone = m_make->openOrder(m_make->table("t3", "Bar"), {m_make->line(m_tea, 1)}, "Cid");
        QVERIFY(sales->makanDitempatSelesai(gone));
        EntityMakanDitempat* paid = m_make->openOrder(m_make->table("t4", "Hall"), {m_make->line(m_tea, 1)}, "Dan");
        m_make->invoice(paid, 5000);

        show();
        QCOMPARE(column(Column::TableName), (QStringList{"Bar", "Garden", "Garden", "Hall", "Terrace"}));
        QCOMPARE(column(Column::TableCode), (QStringList{"t3", "t2", "t2", "t4", "t1"}));
        QCOMPARE(column(Column::Guest), (QStringList{"", "Ann", "Bob", "Dan", ""}));
        QCOMPARE(column(Column::Status),
                 (QStringList{"Empty", "Waiting for the menu", "Waiting for the menu", "Fully Paid", "Empty"}));
        QCOMPARE(column(Column::FromTable), (QStringList{"", "t1", "", "", ""}));
        QCOMPARE(column(Column::Menu), (QStringList{"", "Fried rice, Iced tea", "Iced tea", "Iced tea", ""}));
        QCOMPARE(label("lblCount"), QString("5 Items"));
        for (int row = 0; row < 5; ++row)
            QVERIFY(!m_grid->model()->index(row, Column::Status).data(Qt::DecorationRole).value<QIcon>().isNull());
        QCOMPARE(TableModelMakanDitempat::statusText(8), QString());
    }

    void aSearchFindsTablesAndSaysWhenThereAreNone()
    {
        m_make->openOrder(m_t2, {m_make->line(m_tea, 1)}, "Bob");
        show();
        const auto search = [this](const QString& text) {
            typeInto(m_page.get(), "txtFilter", text);
            confirm(m_page.get(), "txtFilter");
        };
        search("GARDEN");
        QTRY_COMPARE(column(Column::Guest), QStringList{"Bob"});
        // Orders are found by the whole code or name, tables by a part of it.
        search("gar");
        QTRY_COMPARE(column(Column::Status), QStringList{"Empty"});
        search("o'nothing");
        QTRY_COMPARE(m_grid->model()->rowCount(), 0);
        QCOMPARE(label("lblCount"), QString("0 Items"));
        QVERIFY(m_people->boxes().isEmpty());
    }

    void aDayOfRefreshesTakesFewStatementsAndKeepsNoRecords()
    {
        for (int i = 0; i < 60; ++i)
            m_make->openOrder(m_make->table(QString("x%1").arg(i)), {m_make->line(m_tea, 1), m_make->line(m_rice, 1)});
        show();
        const StatementCount statements;
        m_page->on_btnRefresh_clicked();
        QCOMPARE(m_grid->model()->rowCount(), 62);
        QVERIFY2(statements.count() > 0 && statements.count() <= 4, qPrintable(QString::number(statements.count())));
        const int records = AppContext::instance()->liveEntities().size();
        QVERIFY(records > 60);
        for (int i = 0; i < 1000; ++i)
            m_page->on_btnRefresh_clicked();
        QCOMPARE(AppContext::instance()->liveEntities().size(), records);
        QCOMPARE(m_page->findChildren<KorEntityModel*>().size(), 1);
    }

    void theCursorStaysOnItsTable()
    {
        show();
        choose("t2");
        m_make->table("a1", "A new table");
        press(Qt::Key_F5);
        QTRY_COMPARE(m_grid->model()->rowCount(), 3);
        QCOMPARE(cell(m_grid->currentIndex().row(), Column::TableCode), QString("t2"));
    }

    void actionsOnAFreeTableSayThatItIsEmpty_data()
    {
        const auto row = addColumns<int, QString>("key", "text");
        row("edit", Qt::Key_F2, "This table: Garden is empty");
        row("cancel", Qt::Key_Delete, "Table Garden is empty");
        row("pay", Qt::Key_F9, "Table Garden is empty");
        row("print", Qt::Key_F8, "Table Garden is empty");
    }
    void actionsOnAFreeTableSayThatItIsEmpty()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        show();
        choose("t2");
        press(key);
        QTRY_COMPARE(m_people->texts(), QStringList{text});
        QVERIFY(m_people->finished());
        bringToFront(m_page.get());
        m_grid->clearSelection();
        press(Qt::Key_F12);
        QTRY_COMPARE(m_people->lastText(), QString("Please select a table"));
        QCOMPARE(m_people->lastTitle(), QString("Info"));
    }

    void anOrderIsTakenByTheKeyboardAlone_data()
    {
        const auto row = addColumns<int>("stray");
        row("a steady hand", 0);
        // Sent to the board, but handled when the form is already open.
        for (int key :
             {Qt::Key_F5, Qt::Key_Return, Qt::Key_F12, Qt::Key_F2, Qt::Key_F9, Qt::Key_Delete, Qt::Key_Escape})
            row(qPrintable("a hasty " + QKeySequence(key).toString()), key);
    }
    void anOrderIsTakenByTheKeyboardAlone()
    {
        QFETCH(int, stray);
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this, stray](DialogMakanDitempat* form) {
            if (stray)
                qt_handleKeyEvent(m_page->windowHandle(), QEvent::KeyPress, stray, {});
            QCOMPARE(form->windowTitle(), QString("Dine - Add a new order"));
            QTest::keyClicks(form->focusWidget(), "Ann");
            keyIn(form, {{"rice", "2"}, {"TEA", "1"}}, [](DialogMakanDitempat* same) {
                QCOMPARE(labelled(same, "lblTotal"), QString("Rp55,000.00"));
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(at("t1", Column::Status), QString("Waiting for the menu"));
        QCOMPARE(at("t1", Column::Guest), QString("Ann"));
        QCOMPARE(at("t1", Column::Menu), QString("Fried rice, Iced tea"));
        QCOMPARE(m_people->texts(), QStringList());
        const QString slip = takeSlips();
        QVERIFY2(slip.contains("Table  : t1") && slip.contains(" Fried rice") && slip.contains("Iced tea"),
                 qPrintable(slip));
        QCOMPARE(m_database->value("SELECT sum(total_amount) FROM makan_ditempat_detail").toDouble(), 55000.0);
        QCOMPARE(m_database->value("SELECT tgl FROM makan_ditempat WHERE createdby = 1").toDate(),
                 QDate::currentDate());
    }

    void aTableThatWasTakenMeanwhileIsToldAndTheFormStays()
    {
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this](DialogMakanDitempat* form) {
            keyIn(form, {{"TEA", "1"}}, [this](DialogMakanDitempat* same) {
                m_make->openOrder(m_t1, {m_make->line(m_rice, 1)}, "Bob");
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
                QVERIFY(same->isVisible());
                QCOMPARE(labelled(same, "lblTotal"), QString("Rp5,000.00"));
                typeInto(same, "txtKode", "T2");
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
                QVERIFY(!same->isVisible());
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(m_people->texts(), QStringList{"Meja sudah terisi\r\n"});
        QCOMPARE(m_people->lastTitle(), QString("Info"));
        QTRY_COMPARE(column(Column::Menu), (QStringList{"Iced tea", "Fried rice"}));
        QCOMPARE(column(Column::FromTable), (QStringList{"", ""}));
    }

    void furtherLinesMergeIntoTheStandingOrder()
    {
        EntityMakanDitempat* order = m_make->openOrder(m_t1, {m_make->line(m_rice, 1)}, "Ann");
        m_make->invoice(order, 25000);
        show();
        QCOMPARE(at("t1", Column::Status), QString("Fully Paid"));
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this](DialogMakanDitempat* form) {
            QVERIFY(!form->findChild<QLineEdit*>("txtKode")->isEnabled());
            QCOMPARE(shown(form, "txtNamaPelanggan"), QString("Ann"));
            keyIn(form, {{"RICE", "2"}, {"TEA", "1"}},
                  [](DialogMakanDitempat* same) { QTest::keyClick(same->focusWidget(), Qt::Key_Return); });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(at("t1", Column::Menu), QString("Fried rice, Iced tea"));
        QCOMPARE(at("t1", Column::Status), QString("Waiting for the menu"));
        // The kitchen gets only the added lines, with a mark for dishes that it knows already.
        const QString slip = takeSlips();
        QVERIFY2(slip.contains(QRegularExpression("RICE +\\*Fried rice +2 ")), qPrintable(slip));
        QVERIFY2(slip.contains(QRegularExpression("TEA +Iced tea +1 ")), qPrintable(slip));
        QCOMPARE(m_database->value("SELECT qty FROM makan_ditempat_detail ORDER BY id").toInt(), 3);
        QCOMPARE(m_database->value("SELECT total_amount FROM makan_ditempat_detail ORDER BY id").toDouble(), 25000.0);
        QCOMPARE(m_people->texts(), QStringList());
    }

    void anEditMovesTheOrderAndStartsTheWaitAgain()
    {
        EntityMakanDitempat* order = m_make->openOrder(m_t1, {m_make->line(m_rice, 1)}, "Ann");
        m_make->invoice(order, 25000);
        m_make->openOrder(m_t2, {m_make->line(m_tea, 1)}, "Bob");
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([](DialogMakanDitempat* form) {
            QCOMPARE(form->windowTitle(), QString("Dine - Edit Order"));
            const auto* notice = form->findChild<QLabel*>("lblNotice");
            QVERIFY(notice->isVisible());
            QVERIFY2(notice->text().startsWith("This order is billed already: TRD"), qPrintable(notice->text()));
            typeInto(form, "txtKode", "t2");
            // The first Return selects the table, the second confirms the form.
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        });
        press(Qt::Key_F2);
        // An occupied table is accepted here.
        QTRY_COMPARE(column(Column::Guest), (QStringList{"Ann", "Bob", ""}));
        QCOMPARE(cell(0, Column::FromTable), QString("t1"));
        QCOMPARE(cell(0, Column::Status), QString("Waiting for the menu"));
        QVERIFY(m_people->finished());
        // The kitchen has all the lines already and only needs the new table.
        const QString slip = takeSlips();
        QVERIFY2(slip.contains("\nMoved from table t1 to table t2\n") && !slip.contains("Fried rice"),
                 qPrintable(slip));
        QCOMPARE(m_people->texts(), QStringList());
    }

    void anOrderWithAnInvoiceIsNotCancelled()
    {
        EntityMakanDitempat* order = m_make->openOrder(m_t1, {m_make->line(m_rice, 1)});
        m_make->invoice(order, 0);
        show();
        QCOMPARE(at("t1", Column::Status), QString("Unpaid"));
        choose("t1");
        m_people->answer(QMessageBox::Yes);
        press(Qt::Key_Delete);
        QTRY_COMPARE(m_people->texts(), (QStringList{"Are you sure you want to delete order of table: Terrace ?",
                                                     "Table Terrace is already have an invoice. Please finish the "
                                                     "payment or click Finish button on Payment Dialog"}));
        QCOMPARE(m_people->lastTitle(), QString("Info"));
        QCOMPARE(count("makan_ditempat"), 1);
    }

    void cancellingAsksAndFreesTheTable()
    {
        m_make->openOrder(m_t1, {m_make->line(m_rice, 1)});
        m_make->openOrder(m_t2, {m_make->line(m_rice, 1)});
        show();
        m_grid->selectAll();
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::Yes);
        press(Qt::Key_Delete);
        QTRY_COMPARE(column(Column::Status), (QStringList{"Waiting for the menu", "Empty"}));
        QCOMPARE(m_people->lastTitle(), QString("Delete"));
        QCOMPARE(count("makan_ditempat_detail"), 1);
        const QString slip = takeSlips();
        QVERIFY2(slip.contains("Table  : t1\n") && slip.contains("Order Cancelled.\n"), qPrintable(slip));
        QVERIFY(!slip.contains("Table  : t2\n"));
    }

private:
    using FormStep = std::function<void(DialogMakanDitempat*)>;

    void keyIn(DialogMakanDitempat* form, const QList<QPair<QString, QString>>& lines, const FormStep& then)
    {
        ::keyIn(*m_people, form, lines, then);
    }
    /** What the first row of this table shows. */
    [[nodiscard]] QString at(const QString& code, Column shown) const
    {
        return cell(column(Column::TableCode).indexOf(code), shown);
    }

    void press(int key) { QTest::keyClick(m_grid, static_cast<Qt::Key>(key)); }
    /** The first row of this table becomes the selected one. */
    void choose(const QString& code)
    {
        bringToFront(m_page.get());
        m_grid->setFocus();
        m_grid->selectRow(column(Column::TableCode).indexOf(code));
    }

    EntityItem* m_rice = nullptr;
    EntityItem* m_tea = nullptr;
    EntityMeja* m_t1 = nullptr;
    EntityMeja* m_t2 = nullptr;
};

QTEST_MAIN(TestBoard)
#include "tst_board.moc"
