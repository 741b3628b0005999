#include "zavel/slips/ReportMakanDitempat.h"

#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/slips/OrderText.h"
#include "zavel/tables/EntityMeja.h"

ReportMakanDitempat::ReportMakanDitempat(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                                         const EntityMakanDitempat* order, const EntityDataPerusahaan* company,
                                         const EntityUser* user, const EntityPrinterType* printerType)
    : SlipReport(parent, printerType), m_cashierPrinter(cashierPrinter), m_order(order), m_company(company)
{
    Q_UNUSED(user) // the summary shows no user
}

bool ReportMakanDitempat::print()
{
    SlipPurpose known = purpose();
    known.kind = KeptSlip::Recap;
    known.place = m_order->getMeja() ? m_order->getMeja()->getNama() : m_order->getPemesan();
    setPurpose(known);
    return printText("Menu", composeOrderRecap(*m_order, *m_company, *m_cashierPrinter), *m_cashierPrinter);
}
