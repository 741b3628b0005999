#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** One item that is returned without a purchase. */
class DialogCreditNotePurchases final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogCreditNotePurchases(EntityPool& items, QWidget* parent);
};
