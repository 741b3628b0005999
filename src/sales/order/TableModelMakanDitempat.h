#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>
#include <QIcon>

/** The board's rows: every table with its open order, or with a placeholder where it is free. */
class TableModelMakanDitempat final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { TableCode, TableName, Guest, Status, FromTable, Menu };

    TableModelMakanDitempat(const QList<KorEntity*>& orders, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /** The word for an order's status; empty for a number that is none. */
    [[nodiscard]] static QString statusText(int status);

private:
    [[nodiscard]] QIcon statusMark(int status) const;

    mutable QHash<int, QIcon> m_marks;
};
