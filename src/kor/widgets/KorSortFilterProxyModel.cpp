#include "kor/widgets/KorSortFilterProxyModel.h"

#include "kor/widgets/KorEntityModel.h"

#include <QDateTime>

KorSortFilterProxyModel::KorSortFilterProxyModel(QObject* parent) : QSortFilterProxyModel(parent) {}

void KorSortFilterProxyModel::setSourceModel(QAbstractItemModel* model)
{
    // Connected first: the keys have to be gone before the base class sorts what has changed.
    const auto forget = [this] { m_keys.clear(); };
    connect(model, &QAbstractItemModel::modelReset, this, forget);
    connect(model, &QAbstractItemModel::dataChanged, this, forget);
    connect(model, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(model, &QAbstractItemModel::layoutChanged, this, forget);
    connect(model, &QAbstractItemModel::rowsInserted, this, [this, model](const QModelIndex&, int, int last) {
        // Rows at the end leave the others where they are.
        if (last != model->rowCount() - 1)
            m_keys.clear();
    });
    QSortFilterProxyModel::setSourceModel(model);
}

int KorSortFilterProxyModel::columnType(const QModelIndex& index) const
{
    const auto* model = qobject_cast<const KorEntityModel*>(sourceModel());
    return model && model->rowCount() > 0 ? model->columnType(index.column()) : -1;
}

QVariant KorSortFilterProxyModel::sortKey(int columnType, const QString& cell) const
{
    if (columnType == QMetaType::QDateTime)
        return QDateTime::fromString(cell, QStringLiteral("d-M-yyyy h:m:s")).toMSecsSinceEpoch();
    if (columnType == QMetaType::Int)
        return cell.toLongLong();
    return cell;
}

const QVariant& KorSortFilterProxyModel::keyOf(const QModelIndex& index, int type) const
{
    QVector<Key>& keys = m_keys[index.column()];
    if (keys.size() <= index.row())
        keys.resize(sourceModel()->rowCount());
    Key& key = keys[index.row()];
    if (!key.isKnown) {
        key.isKnown = true;
        key.value = sortKey(type, sourceModel()->data(index, Qt::DisplayRole).toString());
    }
    return key.value;
}

bool KorSortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int type = columnType(left);
    if (type < 0)
        return false;
    const QVariant leftKey = keyOf(left, type);
    const QVariant rightKey = keyOf(right, type);
    if (!leftKey.isValid() || !rightKey.isValid())
        return !leftKey.isValid() && rightKey.isValid();
    if (leftKey.type() == QVariant::LongLong)
        return leftKey.toLongLong() < rightKey.toLongLong();
    return QString::localeAwareCompare(leftKey.toString(), rightKey.toString()) < 0;
}
