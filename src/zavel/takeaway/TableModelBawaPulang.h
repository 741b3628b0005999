#pragma once

#include "zavel/order/OrderBoardModel.h"

/** The orders to take away: the guest, the status and the ordered items. */
class TableModelBawaPulang final : public OrderBoardModel
{
    Q_OBJECT

public:
    enum Column { Id, Guest, Status, Menu };

    TableModelBawaPulang(const QList<KorEntity*>& orders, QObject* parent);

    /** The text for an order's status; empty for an unknown number. */
    [[nodiscard]] static QString statusText(int status);
};
