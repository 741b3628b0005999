#pragma once

#include "pos/cash/settlement/PartPaymentDialog.h"

/** Takes the amount that a member pays of one invoice. */
class DialogBayarPiutang final : public PartPaymentDialog
{
    Q_OBJECT

public:
    explicit DialogBayarPiutang(QWidget* parent = nullptr)
        : PartPaymentDialog({tr("Pay an Invoice"), tr("Invoice No. :"), tr("Enter the amount paid")}, parent)
    {}
};
