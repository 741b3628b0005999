#pragma once

#include "zavel/slips/ReportBill.h"

class EntityInvoiceFastFood;

/** The bill of a sale over the counter. Its text is also logged, because such a sale has no order record. */
class ReportBillFastFood final : public ReportBill
{
    Q_OBJECT

public:
    ReportBillFastFood(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                       const EntityInvoiceFastFood* sale, const EntityDataPerusahaan* company, const EntityUser* user,
                       const EntityPrinterType* printerType);

    bool print() override;

protected:
    [[nodiscard]] QString compose() const override;
};
