#pragma once

#include "pos/purchasing/payment/EntityPayment.h"
#include "shell/database/converter/DocumentStep.h"

/** Converts payments to suppliers, with the purchases that they paid. */
class PaymentStep final : public DocumentStep
{
    Q_DECLARE_TR_FUNCTIONS(PaymentStep)

public:
    explicit PaymentStep(Conversion& run);

protected:
    [[nodiscard]] QString numberIn(const LegacyRow& row) const override { return row.text("idbeli"); }
    [[nodiscard]] KorEntity* stored(const QString& no) override;
    void convertNew(const LegacyRow& row, const QString& no) override;

private:
    /** The sum of the lines. */
    double addLines(EntityPayment& payment, const LegacyRow& row);

    /** The number of the payment's lines whose purchase was not found. */
    int m_withoutPurchase = 0;
};
