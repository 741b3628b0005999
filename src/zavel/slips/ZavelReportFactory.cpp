#include "zavel/slips/ZavelReportFactory.h"

#include "app/access/BusinessUser.h"
#include "app/context/AppContext.h"
#include "app/context/EntityUser.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/slips/ReportBillBawaPulang.h"
#include "zavel/slips/ReportBillFastFood.h"
#include "zavel/slips/ReportBillMakanDitempat.h"
#include "zavel/slips/ReportKitchenChange.h"
#include "zavel/slips/ReportMakanDitempat.h"
#include "zavel/slips/ReportMenuOrder.h"
#include "zavel/slips/ReportMenuOrderCanceled.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

#include <QApplication>

ZavelReportFactory* ZavelReportFactory::instance()
{
    static QPointer<ZavelReportFactory> factory;
    if (!factory)
        factory = new ZavelReportFactory(AppContext::instance());
    return factory;
}

ZavelReportFactory::ZavelReportFactory(QObject* parent) : SlipRequests(parent) {}

void ZavelReportFactory::printBillMakanDitempat(int invoiceId)
{
    printBill<ReportBillMakanDitempat>(&BusinessPenjualan::findInvoiceMakanDitempat, invoiceId);
}

void ZavelReportFactory::printBillFastFood(int invoiceId)
{
    printBill<ReportBillFastFood>(&BusinessPenjualan::findInvoiceFastFood, invoiceId);
}

void ZavelReportFactory::printBillBawaPulang(int invoiceId)
{
    printBill<ReportBillBawaPulang>(&BusinessPenjualan::findInvoiceBawaPulang, invoiceId);
}

// "typename" instead of "class": lupdate would take "class Sale" as the context of the texts.
template <typename Report, typename Sale>
void ZavelReportFactory::printBill(Sale* (BusinessPenjualan::*find)(int), int invoiceId)
{
    if (!reload() || !readyForCashier())
        return;
    const EntityPoolScope scope(m_records);
    auto* sales = service<BusinessPenjualan>("Sales");
    KorErrorScope errors(sales);
    const Sale* sale = (sales->*find)(invoiceId);
    if (showError(errors.take()))
        return;
    if (!sale) {
        showError(tr("Can not find entity with id: %1").arg(invoiceId));
        return;
    }
    const EntityUser* user = findUser(sale->getInvoice()->getCreatedBy());
    Report(nullptr, m_cashierPrinter, sale, m_company, user, m_printerType).print();
}

void ZavelReportFactory::printMakanDitempat(int orderId)
{
    if (!reload() || !readyForCashier())
        return;
    const EntityPoolScope scope(m_records);
    auto* sales = service<BusinessPenjualan>("Sales");
    KorErrorScope errors(sales);
    const EntityMakanDitempat* order = sales->findOrder(orderId);
    if (showError(errors.take()))
        return;
    if (!order) {
        showError(tr("Can not find entity with id: %1").arg(orderId));
        return;
    }
    const EntityUser* user = findUser(order->getCreatedBy());
    ReportMakanDitempat(nullptr, m_cashierPrinter, order, m_company, user, m_printerType).print();
}

void ZavelReportFactory::printMenuOrder(OrderKind kind, EntityOrder* order)
{
    if (reload())
        printForKitchens<ReportMenuOrder>(kitchensThatPrintByThemselves(), kind, order, orderIsSaved());
}

void ZavelReportFactory::reprintMenuOrder(OrderKind kind, EntityOrder* order)
{
    if (!reload())
        return;
    printForKitchens<ReportMenuOrder>(m_kitchenPrinters, kind, order, QString());
}

void ZavelReportFactory::printMenuOrderChange(OrderKind kind, EntityOrder* order, const QString& formerTable)
{
    if (!reload())
        return;
    const SlipQueue::Patience together;
    const Kitchens kitchens = kitchensThatPrintByThemselves();
    printChange(kitchens, kind, order, composeTakenBack);
    const EntityOrder::Lines standing = order->getDetails();
    order->setDetails(order->getChangedDetails());
    printForKitchens<ReportMenuOrder>(kitchens, kind, order, orderIsSaved());
    order->setDetails(standing);
    if (formerTable.isEmpty())
        return;
    Kitchens unaware;
    for (EntityConfigKitchenPrinter* kitchen : kitchens) {
        // The other kitchens see the move on the slip that they have just got.
        if (!cooksAny(*kitchen, order->getTakenBackDetails() + order->getChangedDetails()))
            unaware.append(kitchen);
    }
    printChange(unaware, kind, order,
                [&formerTable](const KitchenSlipData& slip) { return composeMove(slip, formerTable); });
}

void ZavelReportFactory::printMenuOrderCanceled(OrderKind kind, EntityOrder* order, CancelTo to)
{
    if (!reload())
        return;
    Kitchens kitchens;
    for (EntityConfigKitchenPrinter* kitchen : qAsConst(m_kitchenPrinters)) {
        if (to == AllKitchens || (kitchen->printsByItself() && cooksAny(*kitchen, order->getDetails())))
            kitchens.append(kitchen);
    }
    printForKitchens<ReportMenuOrderCanceled>(kitchens, kind, order,
                                              tr("The order is cancelled. Only its slip is missing."));
}

ZavelReportFactory::Kitchens ZavelReportFactory::kitchensThatPrintByThemselves() const
{
    Kitchens kitchens;
    for (EntityConfigKitchenPrinter* kitchen : m_kitchenPrinters) {
        if (kitchen->printsByItself())
            kitchens.append(kitchen);
    }
    return kitchens;
}

bool ZavelReportFactory::reload()
{
    m_records.clear();
    const EntityPoolScope scope(m_records);
    auto* companies = service<BusinessDataPerusahaan>("Company Profile");
    auto* printers = service<BusinessPrinterConfig>("Printer Config");
    auto* types = service<BusinessPrinterType>("Printer Type");
    KorErrorScope errors({companies, printers, types});
    m_company = companies->getData();
    m_cashierPrinter = printers->getCashierPrinterConfig();
    m_kitchenPrinters = printers->getAllKitchenPrinterConfig();
    m_printerType = m_cashierPrinter ? types->findByType(m_cashierPrinter->getPrinterType()) : nullptr;
    return !showError(errors.take());
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

void ZavelReportFactory::printChange(const Kitchens& kitchens, OrderKind kind, const EntityOrder* order,
                                     const KitchenSlipComposer& composer)
{
    ReportKitchenChange report(nullptr, kitchens, order, kind, composer, m_printerType);
    report.setStanding(orderIsSaved());
    report.print();
}

// "typename" for the same reason.
template <typename Report>
void ZavelReportFactory::printForKitchens(const Kitchens& kitchens, OrderKind kind, const EntityOrder* order,
                                          const QString& standing)
{
    if (kitchens.isEmpty())
        return;
    const EntityPoolScope scope(m_records);
    Report report(nullptr, kitchens, order, kind, m_company, findUser(order->getCreatedBy()), m_printerType);
    report.setStanding(standing);
    report.print();
}

QString ZavelReportFactory::orderIsSaved() { return tr("The order is saved. Only its slip is missing."); }

EntityUser* ZavelReportFactory::findUser(int id)
{
    auto* users = service<BusinessUser>("User");
    KorErrorScope errors(users);
    auto* user = qobject_cast<EntityUser*>(users->find(id));
    showError(errors.take());
    return user;
}

bool ZavelReportFactory::showError(const QString& text)
{
    return KorErrorBox::tell(QApplication::activeWindow(), text);
}
