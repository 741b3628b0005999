#include "reports/page/ReportModel.h"

#include <QBrush>
#include <QColor>
#include <QFont>

ReportModel::ReportModel(QObject* parent) : QAbstractTableModel(parent) {}

void ReportModel::begin(const Report& report, const ReportFormat& format)
{
    beginResetModel();
    if (report.id != m_table.report().id)
        m_sortColumn = -1;
    m_table = ReportTable(report);
    m_format = format;
    endResetModel();
}

void ReportModel::finish()
{
    beginResetModel();
    m_table.arrange(m_sortColumn, m_sortOrder);
    endResetModel();
}

int ReportModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_table.lineCount(); }

int ReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_table.report().columns.size();
}

QVariant ReportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const bool isSum = m_table.lineKind(index.row()) != ReportTable::RowLine;
    switch (role) {
    case Qt::DisplayRole:
        return m_format.cell(m_table, index.row(), index.column());
    case Qt::TextAlignmentRole:
        return int(ReportFormat::alignment(m_table.report().columns.at(index.column()).kind));
    case Qt::FontRole:
        if (isSum) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::BackgroundRole:
        return isSum ? QVariant(QBrush(QColor("#e7ebf0"))) : QVariant();
    case Qt::ForegroundRole: {
        const QVariant value = m_table.value(index.row(), index.column());
        const bool negative = m_table.report().columns.at(index.column()).isNumber() && value.toDouble() < 0;
        return negative ? QVariant(QBrush(QColor("#a32020"))) : QVariant();
    }
    default:
        return {};
    }
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= m_table.report().columns.size())
        return {};
    const ReportColumn& column = m_table.report().columns.at(section);
    if (role == Qt::DisplayRole)
        return reportText(column.title);
    if (role == Qt::TextAlignmentRole)
        return int(ReportFormat::alignment(column.kind));
    return {};
}

void ReportModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    finish();
}

void ReportModel::retranslate()
{
    if (columnCount() == 0)
        return;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}
