#include "zavel/slips/ReportKitchenSlip.h"

#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"
#include "zavel/dinein/EntityMakanDitempat.h"

ReportKitchenSlip::ReportKitchenSlip(QObject* parent, const QList<EntityConfigKitchenPrinter*>& kitchens,
                                     const EntityOrder* order, OrderKind kind, const EntityDataPerusahaan* company,
                                     const EntityUser* user, const EntityPrinterType* printerType)
    : SlipReport(parent, printerType), m_kitchens(kitchens), m_order(order), m_kind(kind)
{
    // Kitchen slips show neither the company nor the user.
    Q_UNUSED(company)
    Q_UNUSED(user)
}

bool ReportKitchenSlip::print()
{
    nameOrder();
    QList<SlipQueue::Job> jobs;
    for (const EntityConfigKitchenPrinter* kitchen : qAsConst(m_kitchens)) {
        // A kitchen without a printer reads its orders from the screen.
        if (kitchen->getPrinterName().isEmpty())
            continue;
        const std::optional<QString> text = compose({kitchen, m_order, m_kind, QDateTime::currentDateTime()});
        if (text)
            jobs.append(jobFor("Menu", *text, *kitchen));
    }
    return printTogether(jobs);
}

void ReportKitchenSlip::nameOrder()
{
    SlipPurpose known = purpose();
    known.kind = KeptSlip::Kitchen;
    const auto* dine = qobject_cast<const EntityMakanDitempat*>(m_order);
    known.place = dine ? dine->tableTrail() : m_order->getPemesan();
    if (m_kind == TakeAwayOrder)
        known.number = QString::number(m_order->getId());
    setPurpose(known);
}
