#pragma once

#include "zavel/order/OrderBoardModel.h"

/** The orders to take away: for whom, how far they are, and what was ordered. */
class TableModelBawaPulang final : public OrderBoardModel
{
    Q_OBJECT

public:
    enum Column { Id, Guest, Status, Menu };

    TableModelBawaPulang(const QList<KorEntity*>& orders, QObject* parent);

    /** The word for an order's status; empty for a number that is none. */
    [[nodiscard]] static QString statusText(int status);
};
