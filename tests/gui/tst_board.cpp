#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/ModalDriver.h"
#include "support/OrderKeys.h"
#include "support/Rows.h"
#include "support/TestCluster.h"
#include "support/TestDatabase.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogMakanDitempat.h"
#include "zavel/dinein/TabMakanDitempat.h"
#include "zavel/dinein/TableModelMakanDitempat.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

namespace
{
using Column = TableModelMakanDitempat::Column;
} // namespace

/** The board of tables: what it shows, and an order's life from the empty table to the empty table. */
class TestBoard : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_spool = std::make_unique<QTemporaryDir>();
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_spool->path()));
        m_database = std::make_unique<TestDatabase>();
        loginAsAdmin();
        m_make = std::make_unique<Builders>();
        m_people = std::make_unique<ModalDriver>();
        m_rice = m_make->item("RICE", "Fried rice", 25000);
        m_tea = m_make->item("TEA", "Iced tea", 5000);
        m_t1 = m_make->table("t1", "Terrace");
        m_t2 = m_make->table("t2", "Garden");
    }

    void cleanup()
    {
        m_board.reset();
        m_people.reset();
        m_make.reset();
        m_database.reset();
        qunsetenv("ZAVEL_SPOOL_DIR");
    }

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
        QCOMPARE(m_board->findChild<QLabel*>("lblCount")->text(), QString("5 Items"));
        for (int row = 0; row < 5; ++row)
            QVERIFY(!m_grid->model()->index(row, Column::Status).data(Qt::DecorationRole).value<QIcon>().isNull());
        QCOMPARE(TableModelMakanDitempat::statusText(8), QString());
    }

    void aSearchFindsTablesAndSaysWhenThereAreNone()
    {
        m_make->openOrder(m_t2, {m_make->line(m_tea, 1)}, "Bob");
        show();
        const auto search = [this](const QString& text) {
            typeInto(m_board.get(), "txtFilter", text);
            QTest::keyClick(m_board->findChild<QLineEdit*>("txtFilter"), Qt::Key_Return);
        };
        search("GARDEN");
        QTRY_COMPARE(column(Column::Guest), QStringList{"Bob"});
        // Orders are found by the whole code or name, tables by a part of it.
        search("gar");
        QTRY_COMPARE(column(Column::Status), QStringList{"Empty"});
        search("o'nothing");
        QTRY_COMPARE(m_grid->model()->rowCount(), 0);
        QCOMPARE(m_board->findChild<QLabel*>("lblCount")->text(), QString("0 Items"));
        QVERIFY(m_people->boxes().isEmpty());
    }

    void aRefreshTakesFewStatementsHoweverManyGuestsThereAre()
    {
        for (int i = 0; i < 20; ++i)
            m_make->openOrder(m_make->table(QString("x%1").arg(i)), {m_make->line(m_tea, 1), m_make->line(m_rice, 1)});
        show();
        const StatementCount statements;
        m_board->on_btnRefresh_clicked();
        QCOMPARE(m_grid->model()->rowCount(), 22);
        QVERIFY2(statements.count() > 0 && statements.count() <= 4, qPrintable(QString::number(statements.count())));
    }

    void aDayOfRefreshesKeepsNoRecords()
    {
        for (int i = 0; i < 60; ++i)
            m_make->openOrder(m_make->table(QString("x%1").arg(i)), {m_make->line(m_tea, 1), m_make->line(m_rice, 1)});
        show();
        m_board->on_btnRefresh_clicked();
        const int records = AppContext::instance()->liveEntities().size();
        QVERIFY(records > 60);
        for (int i = 0; i < 1000; ++i)
            m_board->on_btnRefresh_clicked();
        QCOMPARE(AppContext::instance()->liveEntities().size(), records);
        QCOMPARE(m_board->findChildren<KorEntityModel*>().size(), 1);
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
        addColumns<int, QString>("key", "text");
        addRow("edit", int(Qt::Key_F2), "This table: Garden is empty");
        addRow("cancel", int(Qt::Key_Delete), "Table Garden is empty");
        addRow("pay", int(Qt::Key_F9), "Table Garden is empty");
        addRow("print", int(Qt::Key_F8), "Table Garden is empty");
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
        m_board->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_board.get()));
        m_grid->clearSelection();
        press(Qt::Key_F12);
        QTRY_COMPARE(m_people->lastText(), QString("Please select a table"));
        QCOMPARE(m_people->lastTitle(), QString("Info"));
    }

    void nothingHappensWithoutTheRight_data()
    {
        addColumns<int, int, int>("key", "right", "grant");
        addRow("add", int(Qt::Key_F12), int(BusinessPenjualan::TAMBAH_PESANAN), 0);
        addRow("edit", int(Qt::Key_F2), int(BusinessPenjualan::UBAH_PESANAN), 0);
        addRow("edit what another took", int(Qt::Key_F2), int(BusinessPenjualan::UBAH_PESANAN), 1);
        addRow("cancel", int(Qt::Key_Delete), int(BusinessPenjualan::HAPUS_PESANAN), 0);
        addRow("pay", int(Qt::Key_F9), int(BusinessPenjualan::SAVE_INVOICE), 0);
    }

    void nothingHappensWithoutTheRight()
    {
        QFETCH(int, key);
        QFETCH(int, right);
        QFETCH(int, grant);
        m_make->openOrder(m_t1, {m_make->line(m_tea, 1)}, "Ann");
        loginWithRights("Sales", {{right, grant}});
        show();
        choose("t1");
        press(key);
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith("You don't have access."), qPrintable(m_people->lastText()));
        QVERIFY(m_people->finished());
    }

    void anOrderIsTakenByTheKeyboardAlone_data()
    {
        addColumns<int>("stray");
        addRow("a steady hand", 0);
        // Struck for the board, and handled when the form is there already.
        for (int key :
             {Qt::Key_F5, Qt::Key_Return, Qt::Key_F12, Qt::Key_F2, Qt::Key_F9, Qt::Key_Delete, Qt::Key_Escape})
            addRow(qPrintable("a hasty " + QKeySequence(key).toString()), key);
    }

    void anOrderIsTakenByTheKeyboardAlone()
    {
        QFETCH(int, stray);
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this, stray](DialogMakanDitempat* form) {
            if (stray)
                qt_handleKeyEvent(m_board->windowHandle(), QEvent::KeyPress, stray, {});
            QCOMPARE(form->windowTitle(), QString("Dine - Add a new order"));
            QTest::keyClicks(form->focusWidget(), "Ann");
            keyIn(form, {{"rice", "2"}, {"TEA", "1"}}, [](DialogMakanDitempat* same) {
                QCOMPARE(same->findChild<QLabel*>("lblTotal")->text(), QString("Rp55,000.00"));
                QTest::keyClick(same->focusWidget(), Qt::Key_Return);
            });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(at("t1", Column::Status), QString("Waiting for the menu"));
        QCOMPARE(at("t1", Column::Guest), QString("Ann"));
        QCOMPARE(at("t1", Column::Menu), QString("Fried rice, Iced tea"));
        QCOMPARE(m_people->texts(), QStringList());
        const QString slip = kitchenSlips();
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
                QCOMPARE(same->findChild<QLabel*>("lblTotal")->text(), QString("Rp5,000.00"));
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
            QCOMPARE(form->findChild<QLineEdit*>("txtNamaPelanggan")->text(), QString("Ann"));
            keyIn(form, {{"RICE", "2"}, {"TEA", "1"}},
                  [](DialogMakanDitempat* same) { QTest::keyClick(same->focusWidget(), Qt::Key_Return); });
        });
        press(Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(at("t1", Column::Menu), QString("Fried rice, Iced tea"));
        QCOMPARE(at("t1", Column::Status), QString("Waiting for the menu"));
        // The kitchen cooks what came on top, with a mark at what it knows already.
        const QString slip = kitchenSlips();
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
            // The first takes the table, the second confirms the form.
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        });
        press(Qt::Key_F2);
        // A taken table is no hindrance here.
        QTRY_COMPARE(column(Column::Guest), (QStringList{"Ann", "Bob", ""}));
        QCOMPARE(cell(0, Column::FromTable), QString("t1"));
        QCOMPARE(cell(0, Column::Status), QString("Waiting for the menu"));
        QVERIFY(m_people->finished());
        // The kitchen has seen all of it, and must know where it goes.
        const QString slip = kitchenSlips();
        QVERIFY2(slip.contains("\nMoved from table t1 to table t2\n") && !slip.contains("Fried rice"),
                 qPrintable(slip));
        QCOMPARE(m_people->texts(), QStringList());
    }

    void aStaleEditIsToldAndTheFormStays()
    {
        m_make->openOrder(m_t1, {m_make->line(m_rice, 1)}, "Ann");
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this](DialogMakanDitempat* form) {
            typeInto(form, "txtKode", "t2");
            typeInto(form, "txtNamaPelanggan", "Mine");
            m_database->run("UPDATE makan_ditempat SET version = version + 1, pemesan = 'Theirs'");
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QVERIFY(form->isVisible());
            QCOMPARE(form->findChild<QLineEdit*>("txtNamaPelanggan")->text(), QString("Mine"));
            QTest::keyClick(form, Qt::Key_Escape);
        });
        press(Qt::Key_F2);
        QTRY_COMPARE(at("t1", Column::Guest), QString("Theirs"));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY2(m_people->lastText().contains("has been updated by user"), qPrintable(m_people->lastText()));
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
        QCOMPARE(m_database->value("SELECT count(*) FROM makan_ditempat").toInt(), 1);
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
        QCOMPARE(m_database->value("SELECT count(*) FROM makan_ditempat_detail").toInt(), 1);
        const QString slip = kitchenSlips();
        QVERIFY2(slip.contains("Table  : t1\n") && slip.contains("Order Cancelled.\n"), qPrintable(slip));
        QVERIFY(!slip.contains("Table  : t2\n"));
    }

    void anEditTellsTheKitchenOnlyWhatChanged()
    {
        m_make->openOrder(m_t1, {m_make->line(m_rice, 1), m_make->line(m_tea, 1)});
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this](DialogMakanDitempat* form) {
            m_people->expect<DialogSelectMenu>([this](DialogSelectMenu* picker) {
                m_people->expect<DialogMakanDitempat>(
                    [](DialogMakanDitempat* same) { QTest::keyClick(same->focusWidget(), Qt::Key_Return); });
                QVERIFY(!picker->findChild<QLineEdit*>("txtCode")->isEnabled());
                typeInto(picker, "txtNotes", "no ice");
                QTest::keyClick(picker->focusWidget(), Qt::Key_Return);
            });
            QTRY_COMPARE(QApplication::activeWindow(), form);
            form->findChild<QTableView*>("tblMenu")->selectRow(1);
            QTest::keyClick(form->focusWidget(), Qt::Key_F2);
        });
        press(Qt::Key_F2);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(m_database->value("SELECT description FROM makan_ditempat_detail ORDER BY id DESC").toString(),
                     QString("no ice"));
        const QString slip = kitchenSlips();
        QVERIFY2(slip.contains("*Iced tea") && slip.contains("no ice") && !slip.contains("Fried rice"),
                 qPrintable(slip));
        QCOMPARE(m_people->texts(), QStringList());
    }

    void payingOpensThePaymentOfTheOrder()
    {
        m_make->openOrder(m_t1, {m_make->line(m_rice, 2)}, "Ann");
        show();
        choose("t1");
        m_people->expect<DialogBayarMakanDitempat>([](DialogBayarMakanDitempat* form) {
            QVERIFY(form->findChild<QLineEdit*>("txtMeja")->text().contains("Terrace"));
            QVERIFY(form->findChild<QLineEdit*>("txtSubTotal")->text().contains("50,000"));
            form->reject();
        });
        press(Qt::Key_F9);
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(m_people->texts(), QStringList());
    }

    void aLostDatabaseLeavesTheBoardAsItWas()
    {
        m_make->openOrder(m_t1, {m_make->line(m_rice, 1)}, "Ann");
        show();
        choose("t1");
        m_people->expect<DialogMakanDitempat>([this](DialogMakanDitempat* form) {
            typeInto(form, "txtNamaPelanggan", "Zoe");
            TestCluster::instance().run("ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS false");
            m_database->killConnections();
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            QVERIFY(form->isVisible());
            QCOMPARE(form->findChild<QLineEdit*>("txtNamaPelanggan")->text(), QString("Zoe"));
            form->reject();
        });
        press(Qt::Key_F2);
        QTRY_VERIFY(m_people->finished() && m_people->boxes().size() >= 2);
        for (const SeenBox& box : m_people->boxes()) {
            QCOMPARE(box.title, QString("Error"));
            QVERIFY(!box.text.trimmed().isEmpty());
        }
        QCOMPARE(at("t1", Column::Guest), QString("Ann"));
        // Once it is back, the next look finds it without a restart.
        TestCluster::instance().run("ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS true");
        m_database->run("UPDATE makan_ditempat SET pemesan = 'Later'");
        m_people->clear();
        m_board->on_btnRefresh_clicked();
        QCOMPARE(at("t1", Column::Guest), QString("Later"));
        QCOMPARE(m_people->texts(), QStringList());
    }

private:
    using FormStep = std::function<void(DialogMakanDitempat*)>;

    void show()
    {
        m_board = std::make_unique<TabMakanDitempat>();
        m_board->resize(1100, 600);
        m_board->show();
        QVERIFY(QTest::qWaitForWindowActive(m_board.get()));
        m_grid = m_board->findChild<QTableView*>("tblMeja");
    }

    void keyIn(DialogMakanDitempat* form, const QList<QPair<QString, QString>>& lines, const FormStep& then)
    {
        ::keyIn(*m_people, form, lines, then);
    }
    [[nodiscard]] QString cell(int row, Column column) const
    {
        return m_grid->model()->index(row, column).data().toString();
    }

    /** What the first row of this table shows. */
    [[nodiscard]] QString at(const QString& code, Column shown) const
    {
        return cell(column(Column::TableCode).indexOf(code), shown);
    }

    [[nodiscard]] QStringList column(Column column) const
    {
        QStringList texts;
        for (int row = 0; row < m_grid->model()->rowCount(); ++row)
            texts.append(cell(row, column));
        return texts;
    }

    void press(int key) { QTest::keyClick(m_grid, static_cast<Qt::Key>(key)); }
    /** The first row of this table becomes the selected one. */
    void choose(const QString& code)
    {
        m_board->activateWindow();
        m_grid->setFocus();
        m_grid->selectRow(column(Column::TableCode).indexOf(code));
    }

    /** What the kitchen's printer has printed since the last look, slip after slip. */
    QString kitchenSlips() { return takeSlips(m_spool->path()); }

    std::unique_ptr<QTemporaryDir> m_spool;
    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<Builders> m_make;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<TabMakanDitempat> m_board;
    QTableView* m_grid = nullptr;
    EntityItem* m_rice = nullptr;
    EntityItem* m_tea = nullptr;
    EntityMeja* m_t1 = nullptr;
    EntityMeja* m_t2 = nullptr;
};

QTEST_MAIN(TestBoard)
#include "tst_board.moc"
