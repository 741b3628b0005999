#pragma once

#include "zavel/order/OrderDialog.h"

/** The form of an order to take away: for whom it is, and what. */
class DialogBawaPulang final : public OrderDialog
{
    Q_OBJECT

public:
    explicit DialogBawaPulang(QWidget* parent = nullptr);

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
};
