#pragma once

#include "zavel/slips/ReportBill.h"

class EntityInvoiceMakanDitempat;

/** The bill of a table. Guest, member and table are the order's, the lines the invoice's: a party may pay apart. */
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
