#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"
#include "zavel/tables/DialogMeja.h"
#include "zavel/tables/TabMeja.h"

#include <QLineEdit>
#include <QTableView>
#include <QTest>

namespace
{
void fill(DialogMeja* form, const QString& code, const QString& name)
{
    auto* kode = form->findChild<QLineEdit*>("txtKode");
    kode->selectAll();
    QTest::keyClicks(kode, code);
    auto* nama = form->findChild<QLineEdit*>("txtNama");
    nama->selectAll();
    QTest::keyClicks(nama, name);
    QTest::keyClick(nama, Qt::Key_Return);
}
} // namespace

/** What the list page does beside the contract that every family is held to, shown on the tables. */
class TestMejaPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        m_database->run("DELETE FROM meja");
        m_database->run("INSERT INTO meja (kode, nama, createdby, version) VALUES ('t1', 'Terrace', 1, 1), "
                        "('t2', 'Garden', 2, 1)");
        loginAsAdmin();
        m_people = std::make_unique<ModalDriver>();
        m_page = std::make_unique<TabMeja>();
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
        m_grid = m_page->findChild<QTableView*>("tblMeja");
        QVERIFY(m_grid);
    }
    void cleanup()
    {
        m_page.reset();
        m_people.reset();
        m_database.reset();
    }

    void aDoubleClickEditsLikeF2_data()
    {
        addColumns<bool>("mouse");
        addRow("F2", false);
        addRow("double click", true);
    }
    void aDoubleClickEditsLikeF2()
    {
        QFETCH(bool, mouse);
        m_people->expect<DialogMeja>([](DialogMeja* form) { fill(form, "t2", "Rose garden"); });
        choose("Garden");
        if (mouse) {
            const QPoint cell = m_grid->visualRect(m_grid->currentIndex()).center();
            QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
            QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
        } else {
            QTest::keyClick(m_grid, Qt::Key_F2);
        }
        QTRY_COMPARE(m_database->value("SELECT nama FROM meja WHERE kode = 't2'").toString(), QString("Rose garden"));
        QTRY_VERIFY(m_people->finished());
    }

    void aStaleFormIsToldAndKeepsWhatWasTyped()
    {
        m_people->expect<DialogMeja>([this](DialogMeja* form) {
            m_database->run("UPDATE meja SET version = 2, updatedby = 5 WHERE kode = 't2'");
            fill(form, "t2", "Mine");
        });
        m_people->expect<DialogMeja>([](DialogMeja* form) {
            QCOMPARE(form->findChild<QLineEdit*>("txtNama")->text(), QString("Mine"));
            QTest::keyClick(form, Qt::Key_Escape);
        });
        choose("Garden");
        QTest::keyClick(m_grid, Qt::Key_F2);
        const int id = m_database->value("SELECT id FROM meja WHERE kode = 't2'").toInt();
        QTRY_COMPARE(m_people->lastText(), QString("Table: meja has been updated by user id: %1  at: 5\r\n").arg(id));
        QCOMPARE(m_database->value("SELECT nama FROM meja WHERE kode = 't2'").toString(), QString("Garden"));
    }

    void theArrowsBeginAtTheFirstRow()
    {
        QVERIFY(m_grid->hasFocus());
        QVERIFY(!m_grid->selectionModel()->hasSelection());
        QTest::keyClick(m_grid, Qt::Key_Down);
        QCOMPARE(m_grid->selectionModel()->selectedRows().value(0).row(), 0);
        QTest::keyClick(m_grid, Qt::Key_Down);
        QCOMPARE(m_grid->selectionModel()->selectedRows().value(0).row(), 1);
    }

    void deletingAsksRowByRow()
    {
        m_grid->selectAll();
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::Yes);
        QTest::keyClick(m_grid, Qt::Key_Delete);
        QTRY_COMPARE(m_people->texts(), (QStringList{"Are you sure you want to delete this table: Garden ?",
                                                     "Are you sure you want to delete this table: Terrace ?"}));
        QTRY_COMPARE(m_grid->model()->rowCount(), 1);
    }

    void aRowThatCouldNotBeReadIsNotSaidToHaveGone()
    {
        choose("Garden");
        m_database->killConnections();
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith("The connection to the database is lost."),
                 qPrintable(m_people->lastText()));
        QTest::keyClick(m_page.get(), Qt::Key_F5);
        QCOMPARE(m_grid->model()->rowCount(), 2);
        QCOMPARE(m_people->boxes().size(), 1);
    }

    void rightsDecideWhatHappens()
    {
        loginWithRights("Table", {{0, 1}, {2, 1}}, 2);
        choose("Terrace");
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_COMPARE(m_people->lastText(), QString("You don't have access.\r\nRequired permission: Table."));
        comeBack();
        QTest::keyClick(m_grid, Qt::Key_Delete);
        QTRY_COMPARE(m_people->boxes().size(), 2);
        QVERIFY(m_people->lastText().startsWith("You don't have access."));
        comeBack();
        choose("Garden");
        m_people->answer(QMessageBox::Yes);
        QTest::keyClick(m_grid, Qt::Key_Delete);
        QTRY_COMPARE(m_grid->model()->rowCount(), 1);
    }

private:
    /** The refusal's box has no window behind it, so the page has to be called to the front again. */
    void comeBack()
    {
        // What the box's end brings along comes first.
        QCoreApplication::processEvents();
        m_page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    void choose(const QString& name)
    {
        for (int row = 0; row < m_grid->model()->rowCount(); ++row) {
            if (m_grid->model()->index(row, 2).data().toString() == name)
                m_grid->selectRow(row);
        }
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<TabMeja> m_page;
    QTableView* m_grid = nullptr;
};

QTEST_MAIN(TestMejaPage)
#include "tst_meja_page.moc"
