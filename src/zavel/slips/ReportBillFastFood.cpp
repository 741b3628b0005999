#include "zavel/slips/ReportBillFastFood.h"

#include "app/context/AppContext.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"

ReportBillFastFood::ReportBillFastFood(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                                       const EntityInvoiceFastFood* sale, const EntityDataPerusahaan* company,
                                       const EntityUser* user, const EntityPrinterType* printerType)
    : ReportBill(parent, cashierPrinter, sale, company, user, printerType)
{
    setGuest(sale->getPemesan(), sale->getMember());
}

bool ReportBillFastFood::print()
{
    AppContext::log(compose());
    return ReportBill::print();
}

QString ReportBillFastFood::compose() const { return composeFastFoodBill(bill()); }
