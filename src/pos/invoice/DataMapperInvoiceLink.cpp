#include "pos/invoice/DataMapperInvoiceLink.h"

#include "app/persistence/AppDocumentSave.h"
#include "kor/persistence/KorBatch.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/IInvoice.h"
#include "pos/invoice/Invoice.h"

#include <algorithm>

DataMapperInvoiceLink::DataMapperInvoiceLink(QObject* parent, DataMapperInvoice* invoices)
    : NumberedMapper(parent, invoices->partners().keys, invoices), m_invoices(invoices)
{}

IInvoice* DataMapperInvoiceLink::saleOf(KorEntity* link) { return dynamic_cast<IInvoice*>(link); }

bool DataMapperInvoiceLink::createTable(int mode)
{
    // The invoice mapper creates the tables of invoices and lines.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return KorDataMapper::createTable(mode);
}

void DataMapperInvoiceLink::prepareInvoice(KorEntity*, Invoice*) {}

std::optional<DataMapperInvoiceLink::BilledOrder> DataMapperInvoiceLink::billedOrder(const KorEntity&) const
{
    return {};
}

QStringList DataMapperInvoiceLink::locksOfInsert(const std::optional<BilledOrder>& order) const
{
    const QString number = numberLock(keyName());
    if (!order)
        return {number};
    // If two workstations bill an order at the same time, the second waits for the order's lock and then sees the first
    // bill.
    return {order->orders->lockOf(order->id), number,
            "select invoice_id from " + tableName() + " where " + order->column + " = " + QString::number(order->id)};
}

QString DataMapperInvoiceLink::objection(const std::optional<BilledOrder>& order, const QVariantList& foundBills)
{
    const bool isBilled = order && std::any_of(foundBills.cbegin(), foundBills.cend(), [&order](const QVariant& bill) {
                              return !order->knownBills.contains(bill.toInt());
                          });
    return isBilled ? tr("This order was billed meanwhile. Nothing was saved.") : QString();
}

bool DataMapperInvoiceLink::loadOrders(const QList<KorEntity*>&) { return true; }

// --- writing -------------------------------------------------------------------------------------------------------

void DataMapperInvoiceLink::insertLinesWith(KorBatch& batch, IInvoice* sale)
{
    QList<KorEntity*> lines;
    for (EntityInvoiceDetail* line : sale->getDetails()) {
        line->setInvoiceId(sale->getInvoice()->getId());
        const Money nothing(nullptr, 0, line->getTotal() ? line->getTotal()->getCurrency() : QString());
        line->setDiscount(nothing.copy(line));
        lines.append(line);
    }
    detailMapper()->insertWith(batch, lines);
}

bool DataMapperInvoiceLink::replaceLines(IInvoice* sale, QString* reason)
{
    if (!detailMapper()->removeByInvoiceId(sale->getInvoice()->getId())) {
        *reason = " \r\n " + detailMapper()->takeError();
        return false;
    }
    KorBatch batch;
    insertLinesWith(batch, sale);
    if (!batch.send())
        *reason = " \r\n " + batch.failures().first();
    return reason->isEmpty();
}

bool DataMapperInvoiceLink::insertInvoice(KorEntity* link, QString* reason)
{
    Invoice* invoice = saleOf(link)->getInvoice();
    const QString number = nextNo();
    if (number.isNull()) {
        *reason = " \r\n " + takeError();
        return false;
    }
    invoice->setInvoiceNo(number);
    invoice->setInvoiceType(keyName());
    prepareInvoice(link, invoice);
    if (m_invoices->insert(invoice))
        return true;
    *reason = " \r\n " + m_invoices->takeError();
    return false;
}

bool DataMapperInvoiceLink::insert(KorEntity* link)
{
    IInvoice* sale = saleOf(link);
    const std::optional<BilledOrder> order = billedOrder(*link);
    AppDocumentSave save(QList<KorEntity*>{link, sale->getInvoice()} + asEntities(sale->getDetails()),
                         locksOfInsert(order));
    if (!save.transaction().isOpen())
        setError(AppDocumentMapper::notOpened());
    if (save.transaction().isRefused())
        return fail(messages().insertHeader, " \r\n " + save.transaction().failure());
    const QString refusal = objection(order, save.transaction().found());
    if (!refusal.isEmpty())
        return fail(refusal);

    QString message = messages().insertHeader;
    QString reason;
    bool done = insertInvoice(link, &reason);
    if (done) {
        KorBatch batch;
        AppDataMapper::insertWith(batch, {link});
        insertLinesWith(batch, sale);
        done = batch.send();
        if (!done)
            reason = " \r\n " + batch.failures().first();
        if (batch.failed() != this)
            message = messages().insertLines;
    }
    if (save.end(done, &reason))
        return true;
    sale->getInvoice()->setInvoiceNo("");
    return fail(message, reason);
}

bool DataMapperInvoiceLink::update(KorEntity* link)
{
    IInvoice* sale = saleOf(link);
    Invoice* invoice = sale->getInvoice();
    AppDocumentSave save(asEntities(sale->getDetails()));
    if (!save.transaction().isOpen())
        setError(AppDocumentMapper::notOpened());
    prepareInvoice(link, invoice);
    QString message = messages().updateHeader;
    QString reason;
    bool done = false;
    if (!m_invoices->update(invoice)) {
        reason = " \r\n " + m_invoices->takeError();
    } else if (!AppDataMapper::update(link)) {
        reason = " \r\n " + takeError();
    } else {
        // Stored lines are deleted and inserted again, not compared.
        message = messages().updateLines;
        done = replaceLines(sale, &reason);
    }
    if (!save.end(done, &reason))
        return fail(message, reason);
    // So that a form that cannot read the sale again can still save the records that it has.
    invoice->setVersion(invoice->getVersion() + 1);
    link->setVersion(link->getVersion() + 1);
    return true;
}

// --- reading -------------------------------------------------------------------------------------------------------

KorEntity* DataMapperInvoiceLink::findById(int id)
{
    return findLinks(KorConditions().equals(tableName() + ".id", id)).value(0);
}

KorEntity* DataMapperInvoiceLink::findByInvoiceId(int invoiceId)
{
    return findLinks(KorConditions().equals("invoice_id", invoiceId)).value(0);
}

KorConditions DataMapperInvoiceLink::linksOf(const QString& orderColumn, int orderId) const
{
    return KorConditions().equals(orderColumn, orderId).ascending(tableName() + ".id");
}

QList<KorEntity*> DataMapperInvoiceLink::findLinks(const KorConditions& conditions)
{
    const QList<KorEntity*> links = findMany(conditions);
    return links.isEmpty() || load(links) ? links : QList<KorEntity*>();
}

bool DataMapperInvoiceLink::load(const QList<KorEntity*>& links)
{
    QList<int> invoiceIds;
    for (KorEntity* link : links)
        invoiceIds.append(saleOf(link)->getInvoice()->getId());
    const QList<Invoice*> invoices = m_invoices->findByIds(invoiceIds);
    const auto lines = castAll<EntityInvoiceDetail>(detailMapper()->findByDocuments(invoiceIds));
    if (m_invoices->hasError() || detailMapper()->hasError()) {
        setError(m_invoices->takeError() + detailMapper()->takeError());
        return false;
    }
    QHash<int, Invoice*> byId;
    for (Invoice* invoice : invoices)
        byId.insert(invoice->getId(), invoice);
    QHash<int, QList<EntityInvoiceDetail*>> linesOf;
    for (EntityInvoiceDetail* line : lines)
        linesOf[line->getInvoiceId()].append(line);
    for (KorEntity* link : links) {
        IInvoice* sale = saleOf(link);
        const int id = sale->getInvoice()->getId();
        if (Invoice* invoice = byId.value(id))
            sale->setInvoice(invoice);
        sale->setDetails(linesOf.value(id));
    }
    return loadOrders(links);
}
