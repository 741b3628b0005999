#include "zavel/slips/ReportBillBawaPulang.h"

#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

ReportBillBawaPulang::ReportBillBawaPulang(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                                           const EntityInvoiceBawaPulang* sale, const EntityDataPerusahaan* company,
                                           const EntityUser* user, const EntityPrinterType* printerType)
    : ReportBill(parent, cashierPrinter, sale, company, user, printerType)
{
    setGuest(sale->getPemesan(), sale->getMember());
}

QString ReportBillBawaPulang::compose() const { return composeTakeAwayBill(bill()); }
