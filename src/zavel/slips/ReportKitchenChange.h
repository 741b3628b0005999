#pragma once

#include "zavel/slips/ReportKitchenSlip.h"

/** Informs the kitchens about a change of an order: something was taken back, or the order moved to another table. */
class ReportKitchenChange final : public ReportKitchenSlip
{
    Q_OBJECT

public:
    ReportKitchenChange(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens, const EntityOrder* order,
                        OrderKind kind, KitchenSlipComposer composer, const EntityPrinterType* printerType)
        : ReportKitchenSlip(parent, kitchens, order, kind, nullptr, nullptr, printerType),
          m_composer(std::move(composer))
    {}

protected:
    [[nodiscard]] std::optional<QString> compose(const KitchenSlipData& slip) const override
    {
        return m_composer(slip);
    }

private:
    KitchenSlipComposer m_composer;
};
