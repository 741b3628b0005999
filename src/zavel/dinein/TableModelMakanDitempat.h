#pragma once

#include "zavel/order/OrderBoardModel.h"

/** The board's rows: every table with its open order, or with a placeholder where it is free. */
class TableModelMakanDitempat final : public OrderBoardModel
{
    Q_OBJECT

public:
    enum Column { TableCode, TableName, Guest, Status, FromTable, Menu };

    TableModelMakanDitempat(const QList<KorEntity*>& orders, QObject* parent);

    /** The text for an order's status; empty for an unknown number. */
    [[nodiscard]] static QString statusText(int status);
};
