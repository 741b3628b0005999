#include "pos/printing/list/TabPrintedSlips.h"
#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/slips/SlipPaper.h"
#include "shell/window/HouseStyle.h"
#include "support/Hands.h"
#include "support/Rows.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

namespace
{
enum Column { Time, Kind, Number, Place, Printer, User, State };

KeptSlip slip(KeptSlip::Kind kind, const QString& number, const QString& place, const QString& printer)
{
    KeptSlip made;
    made.at = QDateTime::currentDateTime();
    made.user = "kasir";
    made.kind = kind;
    made.number = number;
    made.place = place;
    made.title = kind == KeptSlip::Bill ? "Bill" : "Menu";
    made.printer = printer;
    made.columns = 40;
    return made;
}

/** The id of the slip, which is kept in this state. */
QString keep(const KeptSlip& slip, const QByteArray& bytes, KeptSlip::State state, const QString& reason = {})
{
    QList<SlipArchive::Entry> entries{{slip, bytes}};
    SlipArchive::instance()->add(entries);
    if (state != KeptSlip::Waiting)
        SlipArchive::instance()->settle(entries.first().slip.id, state, reason);
    return entries.first().slip.id;
}
} // namespace

/** The page of the slips that this workstation printed, worked by keys. */
class TestPrintedSlips final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { HouseStyle::apply(*qApp); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QDir(m_folder->path()).mkdir("spool");
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_folder->filePath("spool")));
        QFile printers(m_folder->filePath("spool/printers"));
        QVERIFY(printers.open(QIODevice::WriteOnly));
        printers.write("Kasir\nDapur\n");
        SlipArchive::instance()->setFolder(m_folder->filePath("slips"));
        m_people = std::make_unique<ModalDriver>();
    }

    void cleanup()
    {
        m_page.reset();
        m_people.reset();
        SlipArchive::instance()->setFolder(QString());
        qunsetenv("ZAVEL_SPOOL_DIR");
    }

    void theListShowsWhatBecameOfTheSlips()
    {
        keep(slip(KeptSlip::Bill, "TRD11260012", "m1", "Kasir"), "one\n", KeptSlip::Printed);
        keep(slip(KeptSlip::Kitchen, "", "m2", "Dapur"), "two\n", KeptSlip::Failed, "The printer does not answer");
        keep(slip(KeptSlip::Recap, "", "Budi", ""),
             "\x1B"
             "E1three\x1B"
             "E0\n\x1DVB",
             KeptSlip::Unsent);
        open();

        // Today's slips, newest first; the first one is selected.
        QCOMPARE(column(Kind), QStringList({"Order recap", "Kitchen", "Bill"}));
        QCOMPARE(column(State), QStringList({"No printer", "Failed", "Printed"}));
        QCOMPARE(column(Place), QStringList({"Budi", "m2", "m1"}));
        QCOMPARE(cell(2, Number), QString("TRD11260012"));
        QCOMPARE(cell(2, User), QString("kasir"));
        QCOMPARE(the<SlipPaper>("paper")->text(), QString("three\n\n"));

        auto* grid = the<QTableView>("tblSlips");
        QVERIFY(grid->hasFocus());
        QTest::keyClick(grid, Qt::Key_Down);
        QCOMPARE(the<SlipPaper>("paper")->text(), QString("two\n"));
        QCOMPARE(the<QLabel>("lblOutcome")->text(), QString("Failed: The printer does not answer"));
        const QModelIndex failed = grid->model()->index(1, State);
        QCOMPARE(failed.data(Qt::ToolTipRole).toString(), QString("Failed: The printer does not answer"));
        QVERIFY(!failed.data(Qt::DecorationRole).isNull() && !failed.data(Qt::ForegroundRole).isNull());

        const QDate today = QDate::currentDate();
        the<QDateEdit>("dateFrom")->setDate(today.addDays(-1));
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(rows(), 3);
        QVERIFY2(cell(2, Time).startsWith(today.toString("dd-MM ")), qPrintable(cell(2, Time)));
        the<QDateEdit>("dateTo")->setDate(today.addDays(-1));
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(rows(), 0);
        QVERIFY(!the<QPushButton>("btnPrintAgain")->isEnabled());
    }

    void everyFilterNarrowsTheList_data()
    {
        const auto row = addColumns<QByteArray, QString, QStringList>("box", "choice", "numbers");
        row("nothing", QByteArray(), "", QStringList({"RECAP", "KIT2", "TRD2", "TRD1"}));
        row("kind", QByteArray("ddlKind"), "Bill", QStringList({"TRD2", "TRD1"}));
        row("state", QByteArray("ddlState"), "Given back", QStringList("TRD2"));
        row("printer", QByteArray("ddlPrinter"), "Dapur", QStringList("KIT2"));
        row("part of a number", QByteArray("txtNumber"), "t2", QStringList("KIT2"));
    }
    void everyFilterNarrowsTheList()
    {
        QFETCH(QByteArray, box);
        QFETCH(QString, choice);
        keep(slip(KeptSlip::Bill, "TRD1", "m1", "Kasir"), "x\n", KeptSlip::Printed);
        keep(slip(KeptSlip::Bill, "TRD2", "m1", "Kasir"), "x\n", KeptSlip::GivenBack, "aborted");
        keep(slip(KeptSlip::Kitchen, "KIT2", "m1", "Dapur"), "x\n", KeptSlip::Waiting);
        keep(slip(KeptSlip::Recap, "RECAP", "m1", "Kasir"), "x\n", KeptSlip::Failed, "gone");
        open();
        if (auto* choices = the<QComboBox>(box)) {
            choices->setFocus();
            QTest::keyClicks(choices, choice);
            QCOMPARE(choices->currentText(), choice);
        } else if (auto* text = the<QLineEdit>(box)) {
            QTest::keyClick(m_page.get(), Qt::Key_F, Qt::ControlModifier);
            QVERIFY(text->hasFocus());
            QTest::keyClicks(text, choice);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTEST(column(Number), "numbers");
    }

    void aSlipIsPrintedAgainByKey()
    {
        keep(slip(KeptSlip::Bill, "TRD11260012", "m1", "Kasir"), "the bill\n", KeptSlip::Printed);
        open();
        auto* target = the<QComboBox>("ddlTarget");
        QCOMPARE(target->currentText(), QString("Kasir"));
        QTRY_COMPARE(target->count(), 2); // the other printers come when the print server has answered
        QTest::keyClick(the<QTableView>("tblSlips"), Qt::Key_F8);
        QTRY_COMPARE(rows(), 2);
        QTRY_COMPARE(cell(0, State), QString("Printed"));
        QCOMPARE(cell(0, Kind), QString("Bill, copy 1"));
        QCOMPARE(cell(0, Number), QString("TRD11260012"));
        QCOMPARE(cell(0, Printer), QString("Kasir"));
        // The original stays selected: the next key prints another copy of it on another printer.
        QCOMPARE(the<SlipPaper>("paper")->text(), QString("the bill\n"));
        target->setFocus();
        QTest::keyClick(target, Qt::Key_Down);
        QTest::keyClick(target, Qt::Key_F8);
        QTRY_COMPARE(rows(), 3);
        QTRY_COMPARE(cell(0, Kind), QString("Bill, copy 2"));
        QCOMPARE(cell(0, Printer), QString("Dapur"));

        QTest::keyClick(the<QTableView>("tblSlips"), Qt::Key_Home, Qt::ControlModifier);
        const QStringList lines = the<SlipPaper>("paper")->text().split('\n');
        QVERIFY2(lines.first().startsWith("COPY 2  "), qPrintable(lines.first()));
        QVERIFY(lines.contains("the bill"));
        QCOMPARE(QDir(m_folder->filePath("spool")).entryList({"*.slip"}).size(), 2);
        QCOMPARE(m_people->texts(), QStringList());
    }

    void aPrinterThatFailsIsToldAndListed()
    {
        keep(slip(KeptSlip::Bill, "TRD11260012", "m1", "Bar"), "the bill\n", KeptSlip::Printed);
        open();
        QTest::keyClick(the<QTableView>("tblSlips"), Qt::Key_F8);
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().contains("Error Opening Printer:Bar"), qPrintable(m_people->lastText()));
        QTRY_COMPARE(column(State), QStringList({"Failed", "Printed"}));
        QVERIFY(m_page->isVisible());
    }

    void theListFollowsAndKeepsWhatIsInHand()
    {
        for (int number = 0; number < 60; ++number)
            keep(slip(KeptSlip::Bill, QString::number(number), "m1", "Kasir"), "x\n", KeptSlip::Printed);
        const QString waiting = keep(slip(KeptSlip::Kitchen, "", "m2", "Dapur"), "y\n", KeptSlip::Waiting);
        open();
        auto* grid = the<QTableView>("tblSlips");
        for (int step = 0; step < 5; ++step)
            QTest::keyClick(grid, Qt::Key_Down);
        QCOMPARE(grid->currentIndex().data().toString(), cell(5, Time));
        const QString inHand = cell(5, Number);

        SlipArchive::instance()->settle(waiting, KeptSlip::GivenBack, "aborted");
        keep(slip(KeptSlip::Bill, "late", "m1", "Kasir"), "z\n", KeptSlip::Printed);
        QTRY_COMPARE(cell(0, Number), QString("late"));
        QCOMPARE(cell(1, State), QString("Given back"));
        QCOMPARE(grid->currentIndex().row(), 6);
        QCOMPARE(cell(6, Number), inHand);
        QVERIFY(grid->hasFocus());
    }

    void thousandsOfSlipsOpenAtOnce()
    {
        constexpr int many = 5000;
        QList<SlipArchive::Entry> entries;
        for (int number = 0; number < many; ++number)
            entries.append({slip(KeptSlip::Bill, QString::number(number), "m1", "Kasir"), "a bill\n"});
        SlipArchive::instance()->setFolder(QString());
        SlipArchive::instance()->add(entries);
        QElapsedTimer clock;
        clock.start();
        open();
        QCOMPARE(rows(), many);
        QVERIFY2(clock.elapsed() < 500, qPrintable(QString::number(clock.elapsed())));
    }

private:
    void open()
    {
        m_page = std::make_unique<TabPrintedSlips>();
        showPage(m_page.get());
    }

    template <class Widget>
    [[nodiscard]] Widget* the(const char* name) const
    {
        return m_page->findChild<Widget*>(QLatin1String(name));
    }
    [[nodiscard]] int rows() const { return the<QTableView>("tblSlips")->model()->rowCount(); }
    [[nodiscard]] QString cell(int row, int column) const
    {
        return the<QTableView>("tblSlips")->model()->index(row, column).data().toString();
    }
    [[nodiscard]] QStringList column(int column) const { return columnOf(the<QTableView>("tblSlips"), column); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<TabPrintedSlips> m_page;
};

QTEST_MAIN(TestPrintedSlips)
#include "tst_printed_slips.moc"
