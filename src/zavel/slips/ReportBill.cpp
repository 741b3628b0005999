#include "zavel/slips/ReportBill.h"

#include "app/context/EntityUser.h"
#include "pos/invoice/IInvoice.h"
#include "pos/invoice/Invoice.h"
#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "zavel/tables/EntityMeja.h"

ReportBill::ReportBill(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter, const IInvoice* sale,
                       const EntityDataPerusahaan* company, const EntityUser* user,
                       const EntityPrinterType* printerType)
    : SlipReport(parent, printerType)
{
    m_bill.company = company;
    m_bill.printer = cashierPrinter;
    m_bill.invoice = sale->getInvoice();
    m_bill.lines = sale->getDetails();
    // If the user was deleted, the bill has no cashier's name.
    m_bill.cashier = user ? user->getUserName() : QString();
}

void ReportBill::setGuest(const QString& name, const EntityMember* member)
{
    m_bill.guest = name;
    m_bill.member = member;
}

bool ReportBill::print()
{
    SlipPurpose known = purpose();
    known.kind = KeptSlip::Bill;
    known.number = m_bill.invoice->getInvoiceNo();
    known.place = m_bill.table ? m_bill.table->getNama() : m_bill.guest;
    known.standing = tr("The bill is saved. Only its slip is missing.");
    setPurpose(known);
    return printText("Bill", compose(), *m_bill.printer);
}
