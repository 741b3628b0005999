#pragma once

#include "pos/printing/configuration/SlipReport.h"
#include "zavel/slips/OrderText.h"

#include <QList>

class EntityUser;

/** Base of the slips that an order sends to kitchens, each on its own printer. */
class ReportKitchenSlip : public SlipReport
{
    Q_OBJECT

public:
    /** All kitchens at once: one whose printer fails does not keep the next one from its slip. */
    bool print() override;

protected:
    ReportKitchenSlip(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens, const EntityOrder* order,
                      OrderKind kind, const EntityDataPerusahaan* company, const EntityUser* user,
                      const EntityPrinterType* printerType);

    /** Nothing where the kitchen gets no slip. */
    [[nodiscard]] virtual std::optional<QString> compose(const KitchenSlipData& slip) const = 0;

private:
    /** What the slips are about, for the list of kept slips. */
    void nameOrder();

    QList<EntityConfigKitchenPrinter*> m_kitchens;
    const EntityOrder* m_order;
    OrderKind m_kind;
};
