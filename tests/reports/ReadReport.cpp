#include "reports/ReadReport.h"

#include "reports/catalogue/ReportCatalogue.h"
#include "reports/engine/ReportFormat.h"
#include "reports/engine/ReportRun.h"
#include "support/TestDatabase.h"

#include <QEventLoop>
#include <QRegularExpression>

#include <algorithm>

QByteArray ReadReport::lines() const
{
    const ReportFormat format("d MMM yyyy", QLocale("en_US"));
    const QList<ReportColumn>& columns = table.report().columns;
    QVector<QStringList> rows(1);
    for (const ReportColumn& column : columns)
        rows.first().append(column.title);
    for (int line = 0; line < table.lineCount(); ++line) {
        QStringList cells;
        for (int column = 0; column < columns.size(); ++column)
            cells.append(format.cell(table, line, column));
        rows.append(cells);
    }
    QVector<int> widths(columns.size());
    for (const QStringList& row : qAsConst(rows)) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths.at(i), row.at(i).size());
    }
    QString text = QString::fromLatin1(table.report().title) + "\n\n";
    for (const QStringList& row : qAsConst(rows)) {
        QString line;
        for (int i = 0; i < row.size(); ++i) {
            const int width = widths.at(i);
            line +=
                (columns.at(i).isNumber() ? row.at(i).rightJustified(width) : row.at(i).leftJustified(width)) + "  ";
        }
        text += line.remove(QRegularExpression(" +$")) + '\n';
    }
    return text.toUtf8();
}

QVariant ReadReport::value(int row, const QString& field) const
{
    return table.rowValue(row, table.report().columnOf(field));
}

Report reportById(const QString& id)
{
    for (const ReportSubject& subject : ReportCatalogue::subjects()) {
        for (const Report& report : subject.reports) {
            if (report.id == id)
                return report;
        }
    }
    qFatal("no report %s", qPrintable(id));
}

QVariantMap openAnswers(const Report& report, const QDate& from, const QDate& to)
{
    QVariantMap values;
    for (const ReportParameter& parameter : report.parameters) {
        switch (parameter.kind) {
        case ReportParameter::Period:
            values["from"] = from;
            values["to"] = to;
            break;
        case ReportParameter::Day:
            values[parameter.name] = to;
            break;
        case ReportParameter::Number:
            values[parameter.name] = parameter.initial;
            break;
        default:
            values[parameter.name] = parameter.required ? parameter.choices.first().first : QVariant(QVariant::String);
        }
    }
    return values;
}

ReadReport readReport(const TestDatabase& database, const Report& report, const QVariantMap& values)
{
    ReadReport read{ReportTable(report), {}, {}};
    ReportRun run({TestDatabase::host(), TestDatabase::port(), database.name(), TestDatabase::user(), {}},
                  {{report.query, values}});
    QEventLoop loop;
    QObject::connect(&run, &ReportRun::fields, &loop, [&read](int, const QStringList& names) {
        read.fields = names;
        read.table.setFields(names);
    });
    QObject::connect(&run, &ReportRun::rows, &loop,
                     [&read](int, const QVector<ReportRow>& rows) { read.table.append(rows); });
    QObject::connect(&run, &ReportRun::failed, &loop, [&](const QString& reason) {
        read.error = reason;
        loop.quit();
    });
    QObject::connect(&run, &ReportRun::done, &loop, &QEventLoop::quit);
    run.start();
    loop.exec();
    read.table.arrange();
    return read;
}

ReadReport readReport(const TestDatabase& database, const QString& id, const QDate& from, const QDate& to,
                      const QVariantMap& answers)
{
    const Report report = reportById(id);
    QVariantMap values = openAnswers(report, from, to);
    for (auto answer = answers.cbegin(); answer != answers.cend(); ++answer)
        values.insert(answer.key(), answer.value());
    return readReport(database, report, values);
}
