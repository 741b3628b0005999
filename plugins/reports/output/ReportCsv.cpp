#include "reports/output/ReportCsv.h"

#include "reports/engine/ReportTable.h"

#include <QDateTime>
#include <QIODevice>
#include <QLocale>

namespace
{
QString quotedCell(QString text)
{
    if (!text.contains(',') && !text.contains('"') && !text.contains('\n') && !text.contains('\r'))
        return text;
    return '"' + text.replace('"', "\"\"") + '"';
}

QString cell(const QVariant& value, ReportColumn::Kind kind)
{
    if (!value.isValid() || value.isNull())
        return {};
    switch (kind) {
    case ReportColumn::Text:
        return quotedCell(value.toString());
    case ReportColumn::Date:
    case ReportColumn::Month:
        return value.toDate().toString(Qt::ISODate);
    case ReportColumn::DateTime:
        return value.toDateTime().toString("yyyy-MM-dd HH:mm:ss");
    default: {
        // Quotients may have endless decimals; four are enough.
        QString text = QString::number(value.toDouble(), 'f', 4);
        while (text.endsWith('0'))
            text.chop(1);
        if (text.endsWith('.'))
            text.chop(1);
        return text;
    }
    }
}
} // namespace

bool writeReportCsv(const ReportTable& table, QIODevice& device)
{
    const QList<ReportColumn>& columns = table.report().columns;
    // The byte order mark makes spreadsheets read UTF-8.
    bool good = device.write("\xEF\xBB\xBF") == 3;
    const auto writeLine = [&device, &good](const QStringList& cells) {
        const QByteArray line = cells.join(',').toUtf8() + "\r\n";
        good = good && device.write(line) == line.size();
    };
    QStringList cells;
    for (const ReportColumn& column : columns)
        cells.append(quotedCell(reportText(column.title)));
    writeLine(cells);
    for (int line = 0; line < table.lineCount() && good; ++line) {
        if (table.lineKind(line) != ReportTable::RowLine)
            continue;
        cells.clear();
        for (int i = 0; i < columns.size(); ++i)
            cells.append(cell(table.value(line, i), columns.at(i).kind));
        writeLine(cells);
    }
    return good;
}
