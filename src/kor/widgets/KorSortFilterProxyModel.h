#pragma once

#include <QHash>
#include <QSortFilterProxyModel>
#include <QVariant>
#include <QVector>

/**
 * Sorts a grid by the declared types of its columns; it compares the displayed texts. What a text stands for is worked
 * out once per cell, not for each comparison.
 */
class KorSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit KorSortFilterProxyModel(QObject* parent = nullptr);

    void setSourceModel(QAbstractItemModel* model) override;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    /**
     * What a cell of a column of this type is sorted by: a number or a text, of one type for the whole column. Invalid
     * for a cell that is sorted before all others.
     */
    [[nodiscard]] virtual QVariant sortKey(int columnType, const QString& cell) const;

    /** The declared type of the column; -1 if the source has no rows or declares no types. */
    [[nodiscard]] int columnType(const QModelIndex& index) const;

private:
    [[nodiscard]] const QVariant& keyOf(const QModelIndex& index, int type) const;

    struct Key
    {
        QVariant value;
        bool isKnown = false;
    };

    // By column, then by row of the source.
    mutable QHash<int, QVector<Key>> m_keys;
};
