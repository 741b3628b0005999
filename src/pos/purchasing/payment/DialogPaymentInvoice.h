#pragma once

#include "pos/cash/settlement/PartPaymentDialog.h"

/** Takes the amount that the house pays of one purchase. */
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
