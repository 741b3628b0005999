#include "kor/widgets/KorSortFilterProxyModel.h"

#include "kor/widgets/KorEntityModel.h"

#include <QDateTime>

int KorSortFilterProxyModel::columnType(const QModelIndex& index) const
{
    const auto* model = qobject_cast<const KorEntityModel*>(sourceModel());
    return model && model->rowCount() > 0 ? model->columnType(index.column()) : -1;
}

bool KorSortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int type = columnType(left);
    if (type < 0)
        return false;
    const QVariant leftData = sourceModel()->data(left, Qt::DisplayRole);
    const QVariant rightData = sourceModel()->data(right, Qt::DisplayRole);
    if (type == QMetaType::QDateTime) {
        const QString format = QStringLiteral("d-M-yyyy h:m:s");
        return QDateTime::fromString(leftData.toString(), format) < QDateTime::fromString(rightData.toString(), format);
    }
    if (type == QMetaType::Int)
        return leftData.toInt() < rightData.toInt();
    return QString::localeAwareCompare(leftData.toString(), rightData.toString()) < 0;
}
