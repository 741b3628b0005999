#pragma once

#include <QSortFilterProxyModel>

/** Sorts a grid by the declared types of its columns; it compares the displayed texts. */
class KorSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit KorSortFilterProxyModel(QObject* parent = nullptr) : QSortFilterProxyModel(parent) {}

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

    /** The declared type of the column; -1 if the source has no rows or declares no types. */
    [[nodiscard]] int columnType(const QModelIndex& index) const;
};
