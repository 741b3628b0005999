#include "reports/catalogue/ReportCatalogue.h"
#include "reports/page/ReportQuestions.h"
#include "reports/page/TabReport.h"
#include "support/Rows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>

namespace
{
/** What a loaded machine may take for a report, in milliseconds. */
constexpr int patience = 30000;
const char* const aMinute = "select pg_sleep(60), current_date as day, 1 as n, '' as word";

TabReport::Connection connectionOf(const TestDatabase& database)
{
    return [name = database.name()] {
        return ReportConnection{TestDatabase::host(), TestDatabase::port(), name, TestDatabase::user(), {}};
    };
}

/** A report whose statement is the test's own. */
ReportSubject subjectOf(const QString& query)
{
    Report report;
    report.id = "own";
    report.title = "Own";
    report.parameters = {ReportParameter::period(), ReportParameter::contains("text", "Text:"),
                         ReportParameter::row("user", "User:", "select id, username from users order by id")};
    report.query = query;
    report.columns = {ReportColumn::date("day", "Day"), ReportColumn::count("n", "Number").sum(),
                      ReportColumn::text("word", "Word")};
    return {"Own", "Own Reports", {report}};
}

/** A page with this report, on a database of its own, in front of the owner. */
struct OwnReport
{
    explicit OwnReport(const QString& query) : page(subjectOf(query), connectionOf(database), "d MMM yyyy")
    {
        page.show();
    }

    TestDatabase database;
    TabReport page;
};

/** How many sessions of reports there are in this database; other tests have theirs on the same server. */
int sessionsOf(TestDatabase& database, const QString& condition = "true")
{
    return database
        .value("select count(*) from pg_stat_activity where datname = current_database() and "
               "application_name = 'zavelpos-reports' and " +
               condition)
        .toInt();
}

/** The key that reads the report. */
void press(TabReport& page)
{
    QVERIFY(QTest::qWaitForWindowActive(&page));
    QTest::keyClick(&page, Qt::Key_F5);
}
} // namespace

class TestReportPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale("en_US")); }

    void theOwnerReadsAMonthOfSalesAndTakesItAlong()
    {
        TestDatabase database;
        insertShop(database);
        insertManySales(database, 300);
        TabReport page(ReportCatalogue::sales(), connectionOf(database), "d MMM yyyy");
        page.resize(1280, 760);
        page.show();
        page.choose("sales-by-day");
        page.findChild<QDateEdit*>("from")->setDate(QDate::currentDate().addDays(-31));
        press(page);
        QTRY_VERIFY2_WITH_TIMEOUT(page.table().lineCount() > 20, qPrintable(noteOf(page)), patience);
        const int total = page.table().report().columnOf("total");
        QCOMPARE(page.table().total(total).toDouble(),
                 database.value("select sum(grandtotal_amount) from invoice").toDouble());

        const QTemporaryDir folder;
        const QString csv = folder.filePath("sales.csv");
        QVERIFY(page.saveCsv(csv));
        QFile file(csv);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count("\r\n"), page.table().rowCount() + 1);
        QVERIFY(page.savePdf(folder.filePath("sales.pdf")));
        QVERIFY(!page.saveCsv(folder.filePath("no such folder/sales.csv")));
        QVERIFY(!page.savePdf(folder.filePath("no such folder/sales.pdf")));
    }

    void aReportIsAskedWithWhatStandsInItsBoxes()
    {
        OwnReport own("select :to::date as day, :to::date - :from::date as n, "
                      "coalesce(:text, 'none') || coalesce(:user::text, ' all') as word");
        TabReport& page = own.page;
        auto* users = page.findChild<QComboBox*>("user");
        QTRY_COMPARE_WITH_TIMEOUT(users->count(), 3, patience);
        const auto answer = [&page] {
            QTest::mouseClick(page.findChild<QPushButton*>("show"), Qt::LeftButton);
            return QTest::qWaitFor([&page] { return !page.isRunning(); }, patience)
                       ? page.table().rowValue(0, 2).toString()
                       : QString("still running");
        };
        QCOMPARE(answer(), "none all");
        page.findChild<QLineEdit*>("text")->setText(" 50%'_A\\");
        users->setCurrentIndex(1);
        QCOMPARE(answer(), "%50\\%'\\_a\\\\%" + users->currentData().toString());

        // Swapped days give the same period.
        page.findChild<QDateEdit*>("from")->setDate({2026, 3, 11});
        page.findChild<QDateEdit*>("to")->setDate({2026, 3, 1});
        answer();
        QCOMPARE(page.table().rowValue(0, 0).toDate(), QDate(2026, 3, 11));
        QCOMPARE(page.table().rowValue(0, 1).toInt(), 10);
    }

    void aLongReportLeavesThePageAliveAndCanBeStopped()
    {
        OwnReport own(aMinute);
        TabReport& page = own.page;
        press(page);
        // The page counts the seconds meanwhile, and a second press starts no second run.
        QTRY_VERIFY_WITH_TIMEOUT(noteOf(page).contains("Reading"), patience);
        QTRY_COMPARE_WITH_TIMEOUT(sessionsOf(own.database, "query like 'EXECUTE%'"), 1, patience);
        press(page);
        QTest::mouseClick(page.findChild<QPushButton*>("cancel"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(noteOf(page), "Cancelled.", patience);
        QTRY_COMPARE_WITH_TIMEOUT(sessionsOf(own.database), 0, patience);
        QVERIFY(page.findChild<QPushButton*>("show")->isEnabled());
    }

    void aReportThatCannotBeReadSaysWhy_data()
    {
        const auto row = addColumns<QString, QString>("query", "reason");
        row("a wrong statement", "select nothing from nowhere", "nowhere");
        row("it would write", "with gone as (delete from users returning id) select * from gone",
            "read-only transaction");
        row("it breaks in the middle",
            "select current_date as day, 1 / (3 - n) as n from "
            "generate_series(1, 5) as n",
            "division by zero");
    }
    void aReportThatCannotBeReadSaysWhy()
    {
        FETCH(QString, query, reason);
        OwnReport own(query);
        press(own.page);
        QTRY_VERIFY2_WITH_TIMEOUT(noteOf(own.page).contains(reason), qPrintable(noteOf(own.page)), patience);
        QCOMPARE(own.page.findChild<QTableView*>("grid")->model()->rowCount(), 0);
        QVERIFY(!own.page.findChild<QPushButton*>("csv")->isEnabled());
        QVERIFY(own.database.value("select count(*) from users").toInt() > 0);
    }

    void aPageIsClosedInTheMiddleOfReading()
    {
        TestDatabase database;
        {
            TabReport page(subjectOf(aMinute), connectionOf(database), "d MMM yyyy");
            page.show();
            press(page);
            QTRY_VERIFY_WITH_TIMEOUT(noteOf(page).contains("Reading"), patience);
        }
        QTRY_COMPARE_WITH_TIMEOUT(sessionsOf(database), 0, patience);
    }

    void moreRowsThanAnybodyReadsAreCutOffAndTold()
    {
        OwnReport own("select current_date as day, 1 as n, '' as word from generate_series(1, 200001)");
        press(own.page);
        QTRY_VERIFY_WITH_TIMEOUT(noteOf(own.page).contains("200,000 rows"), patience);
        QCOMPARE(own.page.table().rowCount(), 200000);
    }

private:
    static QString noteOf(const TabReport& page) { return page.findChild<QLabel*>("note")->text(); }
};

QTEST_MAIN(TestReportPage)
#include "tst_report_page.moc"
