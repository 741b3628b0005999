#pragma once

#include "zavel/order/OrderDialog.h"

/** The form of a take-away order: guest and lines. */
class DialogBawaPulang final : public OrderDialog
{
    Q_OBJECT

public:
    explicit DialogBawaPulang(QWidget* parent = nullptr);

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
};
