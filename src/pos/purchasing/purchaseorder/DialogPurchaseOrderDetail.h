#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** One item of an order. */
class DialogPurchaseOrderDetail final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogPurchaseOrderDetail(EntityPool& items, QWidget* parent);
};
