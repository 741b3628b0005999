#include "printing/slips/ZavelReportFactory.h"

#include "app/access/BusinessUser.h"
#include "app/access/EntityUser.h"
#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "masterdata/company/BusinessDataPerusahaan.h"
#include "masterdata/company/EntityDataPerusahaan.h"
#include "printing/bill/ReportBillMakanDitempat.h"
#include "printing/configuration/BusinessPrinterConfig.h"
#include "printing/kitchenslip/ReportMakanDitempat.h"
#include "printing/kitchenslip/ReportMenuOrder.h"
#include "printing/kitchenslip/ReportMenuOrderCanceled.h"
#include "printing/printer/BusinessPrinterType.h"
#include "sales/payment/EntityInvoiceMakanDitempat.h"
#include "sales/service/BusinessPenjualan.h"

#include <QApplication>
#include <QMessageBox>

namespace
{
BusinessPenjualan* sales() { return service<BusinessPenjualan>("Sales"); }
} // namespace

ZavelReportFactory* ZavelReportFactory::instance()
{
    static QPointer<ZavelReportFactory> factory;
    if (!factory)
        factory = new ZavelReportFactory(AppContext::instance());
    return factory;
}

ZavelReportFactory::ZavelReportFactory(QObject* parent) : QObject(parent) {}

void ZavelReportFactory::printBillMakanDitempat(int invoiceId)
{
    reload();
    const EntityPoolScope scope(m_records);
    printBill<ReportBillMakanDitempat>(sales()->findInvoiceMakanDitempat(invoiceId));
}

void ZavelReportFactory::printMakanDitempat(int orderId)
{
    reload();
    const EntityPoolScope scope(m_records);
    const EntityMakanDitempat* order = sales()->findOrder(orderId);
    if (showErrors(sales()) || !readyForCashier())
        return;
    if (!order) {
        showError(tr("Can not find entity with id: %1").arg(orderId));
        return;
    }
    ReportMakanDitempat(nullptr, m_cashierPrinter, order, m_company, findUser(order->getCreatedBy()), m_printerType)
        .print();
}

void ZavelReportFactory::printMenuOrder(OrderKind kind, EntityOrder* order)
{
    reload();
    QList<EntityConfigKitchenPrinter*> kitchens;
    for (EntityConfigKitchenPrinter* kitchen : qAsConst(m_kitchenPrinters)) {
        if (kitchen->printsByItself())
            kitchens.append(kitchen);
    }
    printForKitchens<ReportMenuOrder>(kitchens, kind, order);
}

void ZavelReportFactory::reprintMenuOrder(OrderKind kind, EntityOrder* order)
{
    reload();
    printForKitchens<ReportMenuOrder>(m_kitchenPrinters, kind, order);
}

void ZavelReportFactory::printMenuOrderCanceled(OrderKind kind, EntityOrder* order)
{
    reload();
    printForKitchens<ReportMenuOrderCanceled>(m_kitchenPrinters, kind, order);
}

void ZavelReportFactory::reload()
{
    m_records.clear();
    const EntityPoolScope scope(m_records);
    auto* companies = service<BusinessDataPerusahaan>("Company Profile");
    m_company = companies->getData();
    showErrors(companies);
    auto* printers = service<BusinessPrinterConfig>("Printer Config");
    m_cashierPrinter = printers->getCashierPrinterConfig();
    m_kitchenPrinters = printers->getAllKitchenPrinterConfig();
    showErrors(printers);
    auto* types = service<BusinessPrinterType>("Printer Type");
    m_printerType = m_cashierPrinter ? types->findByType(m_cashierPrinter->getPrinterType()) : nullptr;
    showErrors(types);
}

bool ZavelReportFactory::readyForCashier()
{
    if (!m_company)
        showError(tr("There is no company profile, so nothing can be printed at the cashier. Please enter it first."));
    else if (!m_cashierPrinter)
        showError(tr("There are no settings of the cashier printer in this database, so nothing can be printed at the "
                     "cashier."));
    return m_company && m_cashierPrinter;
}

template <class Report, class Sale>
void ZavelReportFactory::printBill(Sale* sale)
{
    if (showErrors(sales()) || !readyForCashier())
        return;
    if (!sale) {
        showError(tr("Can not find the invoice of this bill."));
        return;
    }
    const EntityUser* user = findUser(sale->getInvoice()->getCreatedBy());
    Report(nullptr, m_cashierPrinter, sale, m_company, user, m_printerType).print();
}

template <class Report>
void ZavelReportFactory::printForKitchens(const QList<EntityConfigKitchenPrinter*>& kitchens, OrderKind kind,
                                          const EntityOrder* order)
{
    if (kitchens.isEmpty())
        return;
    const EntityPoolScope scope(m_records);
    Report(nullptr, kitchens, order, kind, m_company, findUser(order->getCreatedBy()), m_printerType).print();
}

EntityUser* ZavelReportFactory::findUser(int id)
{
    auto* users = service<BusinessUser>("User");
    auto* user = qobject_cast<EntityUser*>(users->find(id));
    showErrors(users);
    return user;
}

bool ZavelReportFactory::showErrors(KorBusinessLogic* business)
{
    if (!business->hasError())
        return false;
    showError(business->takeErrors());
    return true;
}

void ZavelReportFactory::showError(const QString& text)
{
    QMessageBox::critical(QApplication::activeWindow(), tr("Error"), text);
}
