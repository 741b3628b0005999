#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** One item that is paid without a purchase. */
class DialogPaymentExpenses final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogPaymentExpenses(EntityPool& items, QWidget* parent)
        : PurchasingLineDialog(items,
                               {tr("Enter the item code"), tr("Enter the purchase price of this item"),
                                tr("Enter the quantity of this item"), tr("Qty :")},
                               parent)
    {
        setWindowTitle(tr("Pay for an Item"));
    }
};
