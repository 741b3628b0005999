#pragma once

#include "reports/engine/ReportFormat.h"
#include "reports/engine/ReportTable.h"

#include <QAbstractTableModel>

/** A report's lines in a grid; sorting keeps groups together and the sums where they belong. */
class ReportModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ReportModel(QObject* parent = nullptr);

    /** Begins a new answer to this report, empty at first. */
    void begin(const Report& report, const ReportFormat& format);
    /** The grid of a report that has not run yet: titles alone. Keeps what is shown while a run goes on. */
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
