#pragma once

#include "zavel/slips/ReportKitchenSlip.h"

/** Informs the kitchens that an order is cancelled. */
class ReportMenuOrderCanceled final : public ReportKitchenSlip
{
    Q_OBJECT

public:
    ReportMenuOrderCanceled(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens,
                            const EntityOrder* order, OrderKind kind, const EntityDataPerusahaan* company,
                            const EntityUser* user, const EntityPrinterType* printerType)
        : ReportKitchenSlip(parent, kitchens, order, kind, company, user, printerType)
    {}

protected:
    [[nodiscard]] std::optional<QString> compose(const KitchenSlipData& slip) const override
    {
        return composeMenuOrderCanceled(slip);
    }
};
