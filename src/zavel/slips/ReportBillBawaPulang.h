#pragma once

#include "zavel/slips/ReportBill.h"

class EntityInvoiceBawaPulang;

/** The bill of an order that was taken away. */
class ReportBillBawaPulang final : public ReportBill
{
    Q_OBJECT

public:
    ReportBillBawaPulang(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                         const EntityInvoiceBawaPulang* sale, const EntityDataPerusahaan* company,
                         const EntityUser* user, const EntityPrinterType* printerType);

protected:
    [[nodiscard]] QString compose() const override;
};
