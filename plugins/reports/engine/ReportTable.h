#pragma once

#include "reports/engine/Report.h"

#include <QHash>
#include <QVector>

/** The values of one row in the order of the fields. */
using ReportRow = QVector<QVariant>;

/**
 * The result of a report: sorted and grouped, with subtotals and a total. A line is one line of the grid and on paper:
 * a row, a subtotal or the total.
 */
class ReportTable
{
public:
    enum LineKind { RowLine, SubtotalLine, TotalLine };

    explicit ReportTable(Report report = {});

    [[nodiscard]] const Report& report() const { return m_report; }
    void clear();
    /** Sets the field names; call it before the first rows. */
    void setFields(const QStringList& fields);
    void append(const QVector<ReportRow>& rows);
    /** Sorts the lines and adds the sums; call it when all rows are there. Column -1 keeps the order of the rows. */
    void arrange(int column = -1, Qt::SortOrder order = Qt::AscendingOrder);

    [[nodiscard]] int rowCount() const { return m_rows.size(); }
    [[nodiscard]] int lineCount() const { return m_lines.size(); }
    [[nodiscard]] LineKind lineKind(int line) const { return m_lines.at(line).kind; }
    /** The value of a cell; invalid for columns without a sum in sum lines. */
    [[nodiscard]] QVariant value(int line, int column) const;
    /** The value of a row in the original order, with codes replaced by their texts. */
    [[nodiscard]] QVariant rowValue(int row, int column) const;
    /** The sum over all rows; invalid for columns that are not summed. */
    [[nodiscard]] QVariant total(int column) const;

private:
    struct Line
    {
        LineKind kind;
        int row;
        QVector<double> sums;
    };

    [[nodiscard]] bool isLess(int left, int right, int column) const;
    [[nodiscard]] QVariant codeAt(int row, int column) const;
    [[nodiscard]] double number(int row, const QString& field) const;
    void addTo(QVector<double>& sums, int row) const;
    [[nodiscard]] QVariant sumValue(const Line& line, int column) const;
    [[nodiscard]] bool hasSums() const { return !m_summedFields.isEmpty(); }

    Report m_report;
    QHash<QString, int> m_fields;
    QVector<ReportRow> m_rows;
    QVector<Line> m_lines;
    // All fields to add up: summed columns and the parts of quotients.
    QStringList m_summedFields;
};
