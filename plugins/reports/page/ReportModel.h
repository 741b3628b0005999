#pragma once

#include "reports/engine/ReportFormat.h"
#include "reports/engine/ReportTable.h"

#include <QAbstractTableModel>

/** The model of a report's grid; sorting keeps groups together and sums in their places. */
class ReportModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ReportModel(QObject* parent = nullptr);

    /** Starts an empty result for this report. */
    void begin(const Report& report, const ReportFormat& format);
    /** The field names of the result; rows are shown only after finish(). */
    void setFields(const QStringList& names) { m_table.setFields(names); }
    void append(const QVector<ReportRow>& rows) { m_table.append(rows); }
    /** Shows what has been appended. */
    void finish();
    [[nodiscard]] const ReportTable& table() const { return m_table; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;
    /** The titles and words in the language in use. */
    void retranslate();

private:
    ReportTable m_table;
    ReportFormat m_format;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
