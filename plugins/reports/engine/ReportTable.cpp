#include "reports/engine/ReportTable.h"

#include <QDateTime>

#include <algorithm>
#include <numeric>

ReportTable::ReportTable(Report report) : m_report(std::move(report))
{
    const auto add = [this](const QString& field) {
        if (!m_summedFields.contains(field))
            m_summedFields.append(field);
    };
    for (const ReportColumn& column : m_report.columns) {
        if (column.summed && !column.isQuotient())
            add(column.field);
    }
    if (m_summedFields.isEmpty())
        return;
    for (const ReportColumn& column : m_report.columns) {
        if (column.isQuotient()) {
            add(column.numerator);
            add(column.denominator);
        }
    }
}

void ReportTable::clear()
{
    m_rows.clear();
    m_lines.clear();
}

void ReportTable::setFields(const QStringList& fields)
{
    m_fields.clear();
    for (int i = 0; i < fields.size(); ++i)
        m_fields.insert(fields.at(i), i);
}

void ReportTable::append(const QVector<ReportRow>& rows) { m_rows += rows; }

void ReportTable::arrange(int column, Qt::SortOrder order)
{
    QVector<int> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    const int group = m_report.columnOf(m_report.group);
    const auto isBefore = [this, group, column, order](int left, int right) {
        const bool descending = order == Qt::DescendingOrder;
        if (group >= 0) {
            // Groups stay together; only sorting by the group column reverses their order.
            const bool turned = column == group && descending;
            if (isLess(left, right, group))
                return !turned;
            if (isLess(right, left, group))
                return turned;
        }
        if (column < 0 || column == group)
            return false;
        return descending ? isLess(right, left, column) : isLess(left, right, column);
    };
    if (column >= 0 || group >= 0)
        std::stable_sort(rows.begin(), rows.end(), isBefore);

    m_lines.clear();
    QVector<double> total(m_summedFields.size());
    QVector<double> subtotal(m_summedFields.size());
    for (int i = 0; i < rows.size(); ++i) {
        const int row = rows.at(i);
        m_lines.append({RowLine, row, {}});
        addTo(total, row);
        addTo(subtotal, row);
        if (group < 0 || !hasSums())
            continue;
        if (i + 1 == rows.size() || isLess(row, rows.at(i + 1), group) || isLess(rows.at(i + 1), row, group)) {
            m_lines.append({SubtotalLine, row, subtotal});
            subtotal.fill(0);
        }
    }
    if (hasSums() && !rows.isEmpty())
        m_lines.append({TotalLine, -1, total});
}

bool ReportTable::isLess(int left, int right, int column) const
{
    const QVariant a = rowValue(left, column);
    const QVariant b = rowValue(right, column);
    if (a.isNull() || b.isNull())
        return a.isNull() && !b.isNull();
    const ReportColumn& shown = m_report.columns.at(column);
    if (shown.isNumber())
        return a.toDouble() < b.toDouble();
    // Sort by the order of the texts (Monday before Friday); values without a text come last.
    const int leftWord = shown.wordOf(codeAt(left, column));
    const int rightWord = shown.wordOf(codeAt(right, column));
    if (leftWord != rightWord)
        return leftWord < rightWord;
    if (shown.kind != ReportColumn::Text)
        return a.toDateTime() < b.toDateTime();
    return a.toString().localeAwareCompare(b.toString()) < 0;
}

double ReportTable::number(int row, const QString& field) const
{
    const int index = m_fields.value(field, -1);
    return index < 0 ? 0 : m_rows.at(row).value(index).toDouble();
}

void ReportTable::addTo(QVector<double>& sums, int row) const
{
    for (int i = 0; i < m_summedFields.size(); ++i)
        sums[i] += number(row, m_summedFields.at(i));
}

namespace
{
QVariant quotient(const ReportColumn& column, double numerator, double denominator)
{
    if (qFuzzyIsNull(denominator))
        return {};
    return numerator / denominator * (column.kind == ReportColumn::Percent ? 100 : 1);
}
} // namespace

QVariant ReportTable::rowValue(int row, int column) const
{
    const ReportColumn& shown = m_report.columns.at(column);
    if (shown.isQuotient())
        return quotient(shown, number(row, shown.numerator), number(row, shown.denominator));
    return shown.inWords(codeAt(row, column));
}

QVariant ReportTable::codeAt(int row, int column) const
{
    const int index = m_fields.value(m_report.columns.at(column).field, -1);
    return index < 0 ? QVariant() : m_rows.at(row).value(index);
}

QVariant ReportTable::sumValue(const Line& line, int column) const
{
    const ReportColumn& shown = m_report.columns.at(column);
    const auto sum = [this, &line](const QString& field) { return line.sums.value(m_summedFields.indexOf(field)); };
    if (shown.isQuotient())
        return quotient(shown, sum(shown.numerator), sum(shown.denominator));
    return shown.summed ? QVariant(sum(shown.field)) : QVariant();
}

QVariant ReportTable::value(int line, int column) const
{
    const Line& shown = m_lines.at(line);
    if (shown.kind == RowLine)
        return rowValue(shown.row, column);
    if (shown.kind == SubtotalLine && column == m_report.columnOf(m_report.group))
        return rowValue(shown.row, column);
    return sumValue(shown, column);
}

QVariant ReportTable::total(int column) const
{
    if (m_lines.isEmpty() || m_lines.last().kind != TotalLine)
        return {};
    return sumValue(m_lines.last(), column);
}
