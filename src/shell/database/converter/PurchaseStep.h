#pragma once

#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "shell/database/converter/DocumentStep.h"

class EntityPurchaseOrder;

/** Takes over purchases with their lines. What was paid at the purchase is what is neither due nor paid later. */
class PurchaseStep final : public DocumentStep
{
    Q_DECLARE_TR_FUNCTIONS(PurchaseStep)

public:
    explicit PurchaseStep(Conversion& run);

    /** Reads what the payments of the former system paid of each purchase. */
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
