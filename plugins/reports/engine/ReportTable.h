#pragma once

#include "reports/engine/Report.h"

#include <QHash>
#include <QVector>

/** The values of one row, in the order of the statement's fields. */
using ReportRow = QVector<QVariant>;

/**
 * What a report's statement gave: sorted, in groups, with subtotals and a total. A line is what the grid and the paper
 * show: a row of the answer, the sums of a group, or those of everything.
 */
class ReportTable
{
public:
    enum LineKind { RowLine, SubtotalLine, TotalLine };

    explicit ReportTable(Report report = {});

    [[nodiscard]] const Report& report() const { return m_report; }
    void clear();
    /** The names of the statement's fields, before the first rows. */
    void setFields(const QStringList& fields);
    void append(const QVector<ReportRow>& rows);
    /** Puts the lines in order and adds the sums; call it when all rows are there. No column: as the rows came. */
    void arrange(int column = -1, Qt::SortOrder order = Qt::AscendingOrder);

    [[nodiscard]] int rowCount() const { return m_rows.size(); }
    [[nodiscard]] int lineCount() const { return m_lines.size(); }
    [[nodiscard]] LineKind lineKind(int line) const { return m_lines.at(line).kind; }
    /** What stands there; invalid where a sum line has nothing to say. */
    [[nodiscard]] QVariant value(int line, int column) const;
    /** The value of a row as the answer gave it, codes in words, whatever the order of the lines. */
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
    // Everything that is added up: the summed columns and what the quotients are made of.
    QStringList m_summedFields;
};
