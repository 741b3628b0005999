#pragma once

#include "pos/printing/configuration/SlipReport.h"
#include "zavel/slips/OrderText.h"

#include <QList>

class EntityUser;

/** Base of the slips of an order for the kitchens, each on the kitchen's own printer. */
class ReportKitchenSlip : public SlipReport
{
    Q_OBJECT

public:
    /** Prints for all kitchens; a failing printer does not stop the slips of the other kitchens. */
    bool print() override;

protected:
    ReportKitchenSlip(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens, const EntityOrder* order,
                      OrderKind kind, const EntityDataPerusahaan* company, const EntityUser* user,
                      const EntityPrinterType* printerType);

    /** std::nullopt if the kitchen gets no slip. */
    [[nodiscard]] virtual std::optional<QString> compose(const KitchenSlipData& slip) const = 0;

private:
    /** Sets the name of the order that the list of kept slips shows. */
    void nameOrder();

    QList<EntityConfigKitchenPrinter*> m_kitchens;
    const EntityOrder* m_order;
    OrderKind m_kind;
};
