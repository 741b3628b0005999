#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** What came of one line of an order. */
class DialogPurchaseDetailPO final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogPurchaseDetailPO(EntityPool& items, QWidget* parent);

    void setEntity(KorEntity* line) override;
};
