#include "zavel/slips/ReportMakanDitempat.h"

#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "zavel/slips/OrderText.h"

ReportMakanDitempat::ReportMakanDitempat(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                                         const EntityMakanDitempat* order, const EntityDataPerusahaan* company,
                                         const EntityUser* user, const EntityPrinterType* printerType)
    : SlipReport(parent, printerType), m_cashierPrinter(cashierPrinter), m_order(order), m_company(company)
{
    Q_UNUSED(user) // the recap names nobody
}

bool ReportMakanDitempat::print()
{
    return printText("Menu", composeOrderRecap(*m_order, *m_company, *m_cashierPrinter), *m_cashierPrinter);
}
