#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** The received quantity of one order line. */
class DialogPurchaseDetailPO final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogPurchaseDetailPO(EntityPool& items, QWidget* parent);

    void setEntity(KorEntity* line) override;
};
