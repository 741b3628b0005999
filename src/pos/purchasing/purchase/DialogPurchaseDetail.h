#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** One item that was bought without an order. */
class DialogPurchaseDetail final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogPurchaseDetail(EntityPool& items, QWidget* parent);
};
