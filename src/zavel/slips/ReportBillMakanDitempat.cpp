#include "zavel/slips/ReportBillMakanDitempat.h"

#include "zavel/dinein/EntityInvoiceMakanDitempat.h"

ReportBillMakanDitempat::ReportBillMakanDitempat(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                                                 const EntityInvoiceMakanDitempat* sale,
                                                 const EntityDataPerusahaan* company, const EntityUser* user,
                                                 const EntityPrinterType* printerType)
    : ReportBill(parent, cashierPrinter, sale, company, user, printerType)
{
    if (const EntityMakanDitempat* order = sale->getMakanDitempat()) {
        setGuest(order->getPemesan(), order->getMember());
        setTable(order->getMeja());
    }
}

QString ReportBillMakanDitempat::compose() const { return composeDineBill(bill()); }
