#pragma once

#include "zavel/slips/ReportKitchenSlip.h"

/** Tells the kitchens what became of an order that they know: something was taken back, or the table is another one. */
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
