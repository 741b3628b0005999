#pragma once

#include "zavel/slips/ReportBill.h"

class EntityInvoiceMakanDitempat;

/** The bill of a table. Guest, member and table come from the order, the lines from the invoice: bills may be split. */
class ReportBillMakanDitempat final : public ReportBill
{
    Q_OBJECT

public:
    ReportBillMakanDitempat(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                            const EntityInvoiceMakanDitempat* sale, const EntityDataPerusahaan* company,
                            const EntityUser* user, const EntityPrinterType* printerType);

protected:
    [[nodiscard]] QString compose() const override;
};
