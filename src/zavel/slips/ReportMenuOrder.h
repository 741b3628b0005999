#pragma once

#include "zavel/slips/ReportKitchenSlip.h"

/** What the kitchens have to cook. A kitchen that cooks nothing of the order gets no slip. */
class ReportMenuOrder final : public ReportKitchenSlip
{
    Q_OBJECT

public:
    ReportMenuOrder(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens, const EntityOrder* order,
                    OrderKind kind, const EntityDataPerusahaan* company, const EntityUser* user,
                    const EntityPrinterType* printerType)
        : ReportKitchenSlip(parent, kitchens, order, kind, company, user, printerType)
    {}

protected:
    [[nodiscard]] std::optional<QString> compose(const KitchenSlipData& slip) const override
    {
        return composeMenuOrder(slip);
    }
};
