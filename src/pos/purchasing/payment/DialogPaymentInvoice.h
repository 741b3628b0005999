#pragma once

#include "pos/cash/settlement/PartPaymentDialog.h"

/** Asks for the amount to pay for one purchase. */
class DialogPaymentInvoice final : public PartPaymentDialog
{
    Q_OBJECT

public:
    explicit DialogPaymentInvoice(QWidget* parent = nullptr)
        : PartPaymentDialog({tr("Pay a Purchase Invoice"), tr("Purchase Invoice No. :"),
                             tr("Enter a valid value for the amount paid")},
                            parent)
    {
        allowNothing();
    }
};
