#include "app/context/EntityPool.h"
#include "app/persistence/AppDataMapper.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/invoice/InvoiceStatus.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/receivable/AmountLeft.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/receivable/DataMapperPiutangDetail.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QHash>

// Members' later payments of open invoices.

EntityPiutang* BusinessPenjualan::findPiutang(int id)
{
    return static_cast<EntityPiutang*>(read(m_mappers.receivables->findById(id), m_mappers.receivables, "findPiutang"));
}

bool BusinessPenjualan::insert(EntityPiutang* payment)
{
    return written(m_mappers.receivables->insert(payment), m_mappers.receivables, "insert") &&
           updateInvoicesOfPiutang(payment);
}

bool BusinessPenjualan::updatePiutang(EntityPiutang* payment)
{
    return written(m_mappers.receivables->update(payment), m_mappers.receivables, "updatePiutang") &&
           updateInvoicesOfPiutang(payment);
}

bool BusinessPenjualan::readPaidInvoices(const EntityPiutang* payment, QList<Invoice*>* invoices,
                                         QHash<int, double>* paid)
{
    QList<int> ids;
    for (const EntityPiutangDetail* line : payment->getDetails())
        ids.append(line->getInvoice()->getId());
    DataMapperPiutangDetail* lines = m_mappers.receivables->lines();
    for (const EntityPiutangDetail* line : lines->findByInvoices(ids))
        (*paid)[line->getInvoice()->getId()] += line->getAmountPaid()->rawAmount();
    bool done = !lines->hasError();
    takeMapperError(lines, "updateInvoice");
    if (done)
        *invoices = m_mappers.invoices->findByIds(ids);
    done = done && !m_mappers.invoices->hasError();
    takeMapperError(m_mappers.invoices, "updateInvoice");
    return done;
}

QList<EntityPiutangDetail*> BusinessPenjualan::creditsReplacedBy(const EntityPiutang* payment)
{
    QList<Invoice*> invoices;
    QHash<int, double> paid;
    QList<EntityPiutangDetail*> credits;
    if (!readPaidInvoices(payment, &invoices, &paid))
        return credits;
    for (Invoice* invoice : qAsConst(invoices)) {
        const Money* credit = invoice->getOtherPayment();
        const double replaced = credit->rawAmount() - paid.value(invoice->getId());
        if (replaced <= 0)
            continue;
        auto* line = new EntityPiutangDetail(AppDataMapper::entityParent());
        line->setInvoice(invoice);
        line->setAmountPaid(minorUnits(replaced, credit->getCurrency()).get());
        credits.append(line);
    }
    return credits;
}

bool BusinessPenjualan::updateInvoicesOfPiutang(const EntityPiutang* payment)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    QList<Invoice*> invoices;
    QHash<int, double> paid;
    bool done = readPaidInvoices(payment, &invoices, &paid);

    for (Invoice* invoice : qAsConst(invoices)) {
        // Replaces any other credit on the invoice, even one given at the sale.
        invoice->setOtherPayment(
            minorUnits(paid.value(invoice->getId()), payment->getGrandTotal()->getCurrency()).get());
        invoice->setNetDue(amountLeft(*invoice).get());
        setInvoiceStatus(invoice);
        done = written(m_mappers.invoices->update(invoice), m_mappers.invoices, "updateInvoice") && done;
    }
    return done;
}

bool BusinessPenjualan::remove(EntityPiutang* payment) { return removeSettlement(m_mappers.receivables, payment); }

QList<EntityPiutang*> BusinessPenjualan::searchPiutang(const ReceivableFilter& filter)
{
    return read(m_mappers.receivables->search(filter), m_mappers.receivables, "searchPiutang");
}

QList<EntityPiutangDetail*> BusinessPenjualan::getUnpaidInvoicesForMember(int memberId)
{
    SalesFilter open;
    open.to = QDate::currentDate();
    open.from = open.to.addYears(-100);
    open.status = SalesFilter::OpenInvoices;
    open.memberId = memberId;
    QList<EntityPiutangDetail*> lines;
    for (const EntityPenjualanInfo* sale : searchPenjualan(open)) {
        auto* line = new EntityPiutangDetail(AppDataMapper::entityParent());
        line->setInvoice(sale->getInvoice());
        line->setAmountDue(amountLeft(*sale->getInvoice()).get());
        line->setAmountPaid(minorUnits(0, line->getAmountDue()->getCurrency()).get());
        lines.append(line);
    }
    return lines;
}
