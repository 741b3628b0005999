#pragma once

#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "shell/database/converter/DocumentStep.h"

class EntityPurchaseOrder;

/**
 * Converts purchases with their lines. The amount paid at the purchase is the total minus what is due and what was paid
 * later.
 */
class PurchaseStep final : public DocumentStep
{
    Q_DECLARE_TR_FUNCTIONS(PurchaseStep)

public:
    explicit PurchaseStep(Conversion& run);

    /** Reads how much the payments of the former system paid for each purchase. */
    void begin();

protected:
    [[nodiscard]] QString numberIn(const LegacyRow& row) const override { return row.text("nonota"); }
    [[nodiscard]] KorEntity* stored(const QString& no) override;
    void convertNew(const LegacyRow& row, const QString& no) override;

private:
    [[nodiscard]] EntityPurchaseOrder* orderOf(const LegacyRow& row);
    void addLines(EntityAcquisition& purchase, const LegacyRow& row, const EntityPurchaseOrder* order);
    [[nodiscard]] EntityAcquisitionDetail* line(const LegacyRow& row, EntityItem* item);
    void setTotals(EntityAcquisition& purchase, const LegacyRow& row);
    void setPaid(EntityAcquisition& purchase, const LegacyRow& row);

    QHash<QString, double> m_paidLater;
};
