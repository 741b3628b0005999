#include "zavel/slips/ReportKitchenSlip.h"

#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"

ReportKitchenSlip::ReportKitchenSlip(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens,
                                     const EntityOrder* order, OrderKind kind, const EntityDataPerusahaan* company,
                                     const EntityUser* user, const EntityPrinterType* printerType)
    : SlipReport(parent, printerType), m_kitchens(kitchens), m_order(order), m_kind(kind)
{
    // The kitchen knows its own house and asks nobody's name: its slips show neither.
    Q_UNUSED(company)
    Q_UNUSED(user)
}

bool ReportKitchenSlip::print()
{
    bool done = true;
    for (const EntityConfigKitchenPrinter* kitchen : qAsConst(m_kitchens))
        done = printForKitchen(*kitchen) && done;
    return done;
}

bool ReportKitchenSlip::printForKitchen(const EntityConfigKitchenPrinter& kitchen)
{
    const std::optional<QString> text = compose({&kitchen, m_order, m_kind, QDateTime::currentDateTime()});
    return !text || printText("Menu", *text, kitchen);
}
