#include "reports/engine/ReportFormat.h"
#include "reports/engine/ReportTable.h"
#include "reports/output/ReportCsv.h"
#include "support/Rows.h"

#include <QBuffer>

using Column = ReportColumn;

namespace
{
/** Dishes sold, by kind: what they brought, what they cost, and how many. */
ReportTable dishes()
{
    Report report;
    report.id = "dishes";
    report.columns = {
        Column::text("kind", "Kind").words({{"D", "Drinks"}}), Column::text("dish", "Dish"), Column::date("day", "Day"),
        Column::count("sold", "Sold").sum(), Column::money("sales", "Sales").sum(),
        // The cost is not shown, and still needed for the margin's share.
        Column::share("margin", "Margin", "gain", "sales"), Column::average("each", "Each", "sales", "sold")};
    report.group = "kind";
    ReportTable table(report);
    table.setFields({"dish", "kind", "day", "sold", "sales", "gain"});
    table.append({{"Tea", "D", QDate(2026, 3, 1), 4, 40.0, 30.0},
                  {"Soup, hot", "Food", QDate(2026, 3, 2), 1, 25.5, -5.0},
                  {"Cola", "D", QDate(2026, 3, 1), 0, 0.0, 0.0}});
    table.append({{"Rice \"large\"", "Food", QVariant(QVariant::Date), 10, 1500000.0, 750000.0}});
    return table;
}

QStringList lines(const ReportTable& table)
{
    const ReportFormat format("d MMM yyyy", QLocale("en_US"));
    QStringList lines;
    for (int line = 0; line < table.lineCount(); ++line) {
        QStringList cells;
        for (int column = 0; column < table.report().columns.size(); ++column)
            cells.append(format.cell(table, line, column));
        lines.append(cells.join('|'));
    }
    return lines;
}
} // namespace

class TestReportTable : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreSortedWithinGroupsAndSummedWhereTheyCanBe_data()
    {
        const QString tea = "Drinks|Tea|1 Mar 2026|4|40|75.0 %|10";
        const QString cola = "Drinks|Cola|1 Mar 2026|0|0||";
        const QString drinks = "Total Drinks|||4|40|75.0 %|10";
        const QString soup = "Food|Soup, hot|2 Mar 2026|1|26|-19.6 %|26";
        const QString rice = "Food|Rice \"large\"||10|1,500,000|50.0 %|150,000";
        const QString food = "Total Food|||11|1,500,026|50.0 %|136,366";
        const QString all = "Total|||15|1,500,066|50.0 %|100,004";
        const auto row = addColumns<int, Qt::SortOrder, QStringList>("column", "order", "expected");
        row("as read", -1, Qt::AscendingOrder, {tea, cola, drinks, soup, rice, food, all});
        row("by name", 1, Qt::AscendingOrder, {cola, tea, drinks, rice, soup, food, all});
        row("largest first", 4, Qt::DescendingOrder, {tea, cola, drinks, rice, soup, food, all});
        row("an empty date is the first", 2, Qt::AscendingOrder, {tea, cola, drinks, rice, soup, food, all});
        row("groups backwards", 0, Qt::DescendingOrder, {soup, rice, food, tea, cola, drinks, all});
    }
    void rowsAreSortedWithinGroupsAndSummedWhereTheyCanBe()
    {
        QFETCH(int, column);
        QFETCH(Qt::SortOrder, order);
        ReportTable table = dishes();
        table.arrange(column, order);
        QTEST(lines(table), "expected");
        QCOMPARE(table.total(4).toDouble(), 1500065.5);
        QVERIFY(!table.total(1).isValid());
    }

    void aSpreadsheetGetsNumbersAndDates()
    {
        QLocale::setDefault(QLocale("id_ID"));
        ReportTable table = dishes();
        table.arrange();
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QVERIFY(writeReportCsv(table, file));
        QCOMPARE(file.data(), QByteArray("\xEF\xBB\xBFKind,Dish,Day,Sold,Sales,Margin,Each\r\n"
                                         "Drinks,Tea,2026-03-01,4,40,75,10\r\n"
                                         "Drinks,Cola,2026-03-01,0,0,,\r\n"
                                         "Food,\"Soup, hot\",2026-03-02,1,25.5,-19.6078,25.5\r\n"
                                         "Food,\"Rice \"\"large\"\"\",,10,1500000,50,150000\r\n"));
    }

    void anEmptyAnswerHasNoSums()
    {
        ReportTable table(dishes().report());
        table.setFields({"kind"});
        table.arrange(0);
        QCOMPARE(table.lineCount(), 0);
        QVERIFY(!table.total(4).isValid());
    }
};

QTEST_GUILESS_MAIN(TestReportTable)
#include "tst_report_table.moc"
