#include "reports/ReadReport.h"
#include "reports/catalogue/ReportCatalogue.h"
#include "support/Golden.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"

#include <QRegularExpression>
#include <QSet>

#include <memory>

namespace
{
const QDate firstDay(2026, 3, 1);
const QDate lastDay(2026, 3, 31);
} // namespace

/** What holds for every report of every subject. */
class TestReportCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale("en_US"));
        m_empty = std::make_unique<TestDatabase>();
        m_busy = std::make_unique<TestDatabase>();
        m_busy->runFile("reports/month_of_trade.sql");
    }

    void cleanupTestCase()
    {
        m_busy.reset();
        m_empty.reset();
    }

    void everyReportIsToldCompletely_data() { addReports(); }
    void everyReportIsToldCompletely()
    {
        QFETCH(QString, id);
        const Report report = reportById(id);
        QVERIFY2(QRegularExpression("^[a-z0-9-]+$").match(id).hasMatch(), "the id stands in file names");
        QVERIFY2(!m_ids.contains(id), "two reports have this id");
        m_ids.insert(id);
        QVERIFY(!report.titleText().isEmpty());
        QVERIFY(report.aboutText().endsWith('.'));
        QVERIFY(report.group.isEmpty() || report.columnOf(report.group) >= 0);
        if (report.chart.kind != ReportChart::None) {
            QVERIFY2(report.columnOf(report.chart.category) >= 0, qPrintable(report.chart.category));
            QVERIFY(!report.chart.series.isEmpty());
        }
        for (const QString& series : report.chart.series)
            QVERIFY2(report.columnOf(series) >= 0 && report.columns.at(report.columnOf(series)).isNumber(),
                     qPrintable(series));
        QSet<QString> titles;
        for (const ReportColumn& column : report.columns) {
            const QString title = reportText(column.title);
            QVERIFY2(!title.isEmpty() && !titles.contains(title), qPrintable(column.field));
            titles.insert(title);
        }
        for (const ReportParameter& parameter : report.parameters)
            QVERIFY2(parameter.kind == ReportParameter::Period || reportText(parameter.title).endsWith(':'),
                     qPrintable(parameter.name));
    }

    void everyReportCanBeReadWithAndWithoutAnswers_data() { addReports(); }
    void everyReportCanBeReadWithAndWithoutAnswers()
    {
        QFETCH(QString, id);
        const Report report = reportById(id);
        const QVariantMap open = openAnswers(report, firstDay, lastDay);
        readWith(report, open);
        for (const ReportParameter& parameter : report.parameters) {
            QVariantList answers;
            if (parameter.kind == ReportParameter::Text)
                answers = {"%a%"};
            for (const auto& choice : parameter.choices)
                answers.append(choice.first);
            if (!parameter.choicesQuery.isEmpty()) {
                QVERIFY2(report.query.contains(':' + parameter.name), qPrintable(parameter.name));
                Report rows;
                rows.query = parameter.choicesQuery;
                rows.columns = {ReportColumn::text("value", "")};
                const ReadReport read = readReport(*m_busy, rows, {});
                QVERIFY2(read.error.isEmpty(), qPrintable(read.error));
                QCOMPARE(read.fields.size(), 2);
                answers.append(m_busy->value(parameter.choicesQuery));
            }
            for (const QVariant& answer : qAsConst(answers)) {
                QVariantMap values = open;
                values[parameter.name] = answer;
                readWith(report, values);
            }
        }
    }

    void aMonthOfTradeReadsAsItAlwaysDid_data() { addReports(); }
    void aMonthOfTradeReadsAsItAlwaysDid()
    {
        QFETCH(QString, id);
        const ReadReport read = readReport(*m_busy, id, firstDay, lastDay);
        const QString difference = goldenDifference("reports/" + id + ".txt", read.lines());
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

private:
    static void addReports()
    {
        addColumns<QString>("id");
        for (const ReportSubject& subject : ReportCatalogue::subjects()) {
            for (const Report& report : subject.reports)
                addRow(qPrintable(report.id), report.id);
        }
    }

    void readWith(const Report& report, const QVariantMap& answers)
    {
        for (const TestDatabase* database : {m_empty.get(), m_busy.get()}) {
            const ReadReport read = readReport(*database, report, answers);
            QVERIFY2(read.error.isEmpty(), qPrintable(read.error));
            for (const ReportColumn& column : report.columns) {
                const QStringList needed =
                    column.isQuotient() ? QStringList{column.numerator, column.denominator} : QStringList{column.field};
                for (const QString& field : needed)
                    QVERIFY2(read.fields.contains(field), qPrintable(field));
            }
        }
    }

    std::unique_ptr<TestDatabase> m_empty;
    std::unique_ptr<TestDatabase> m_busy;
    QSet<QString> m_ids;
};

QTEST_GUILESS_MAIN(TestReportCatalogue)
#include "tst_report_catalogue.moc"
