#include "hands/Till.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/registry/PosMapperRegistry.h"
#include "pos/totals/InvoiceTotals.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/DataMapperMeja.h"

#include <QThread>

#include <unistd.h>

namespace
{
/** The pause in milliseconds before another try after an error. */
constexpr int breath = 50;

/** The line with the reason: the first line only says that it failed. */
QString reasonIn(const QString& told)
{
    constexpr int longest = 120;
    const QStringList lines = told.split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QString words = line.simplified();
        if (!words.isEmpty() && !words.startsWith("error: "))
            return words.left(longest);
    }
    return lines.value(0).left(longest);
}

EntityMakanDitempat* orderOf(QObject* owner, EntityMeja* table, EntityItem* item, const QString& guest,
                             const TillBill& bill)
{
    auto* order = new EntityMakanDitempat(owner);
    order->setMeja(table);
    order->setPemesan(guest);
    order->setTgl(QDate::currentDate());
    order->setStatus(EntityOrder::WAITING_FOR_MENU);
    EntityOrder::Lines lines;
    for (int i = 0; i < bill.lines; ++i) {
        auto* line = new EntityMakanDitempatDetail(owner);
        line->setItem(item);
        line->setQty(bill.qty);
        line->setPriceEach(new Money(line, TillBill::price, "Rp"));
        line->setTotal(new Money(line, bill.lineTotal(), "Rp"));
        lines.append(line);
    }
    order->setDetails(lines);
    return order;
}

EntityInvoiceMakanDitempat* saleOf(QObject* owner, EntityMakanDitempat* order, const TillBill& bill)
{
    auto* sale = new EntityInvoiceMakanDitempat(owner);
    sale->setMakanDitempat(order);
    QList<EntityInvoiceDetail*> lines;
    for (const EntityOrderDetail* ordered : order->getDetails()) {
        auto* line = new EntityInvoiceDetail(owner);
        line->setItem(ordered->getItem());
        line->setQty(ordered->getQty());
        line->setPriceEach(ordered->getPriceEach());
        line->setDiscount(new Money(line, 0, "Rp"));
        line->setTotal(ordered->getTotal());
        lines.append(line);
    }
    sale->setDetails(lines);
    InvoiceTotals totals;
    totals.setCurrency("Rp");
    totals.setSubtotal(bill.total());
    totals.setPaid(bill.total());
    totals.writeTo(sale->getInvoice());
    sale->getInvoice()->setPemesan(order->getPemesan());
    sale->getInvoice()->setInvoiceDate(QDate::currentDate());
    sale->getInvoice()->setAcctCode("1010");
    return sale;
}
} // namespace

Till::Till(int number, const QString& journal)
    : m_name("T" + QString::number(number)), m_code(tableCode(number)), m_journal(journal),
      m_sales(service<BusinessPenjualan>("Sales"))
{}

bool Till::work(int bills, int pace)
{
    readJournal();
    m_item = static_cast<EntityItem*>(PosMapperRegistry::instance()->itemMapper()->findByCode("aym"));
    m_table = static_cast<EntityMeja*>(ZavelMapperRegistry::instance()->mejaMapper()->findByCode(m_code));
    if (!m_item || !m_table || !m_journal.open(QIODevice::Append | QIODevice::Unbuffered))
        return false;
    while (m_acknowledged < bills)
        QThread::msleep(static_cast<unsigned long>(serve() ? pace : breath));
    return true;
}

void Till::readJournal()
{
    if (!m_journal.open(QIODevice::ReadOnly))
        return;
    while (!m_journal.atEnd()) {
        const QString line = QString::fromUtf8(m_journal.readLine());
        m_acknowledged += line.startsWith("ack ") ? 1 : 0;
        m_last = qMax(m_last, line.section(' ', 1, 1).section('-', 1).toInt());
    }
    m_journal.close();
}

void Till::write(const QString& line)
{
    m_journal.write((line.simplified() + '\n').toUtf8());
    ::fsync(m_journal.handle());
}

bool Till::serve()
{
    const TillBill bill(++m_last);
    const QString reference = m_name + '-' + QString::number(m_last);
    EntityPool records;
    const EntityPoolScope scope(records);
    m_sales->clearErrors();
    write("try " + reference);
    EntityMakanDitempat* order = orderOf(records.parent(), m_table, m_item, reference, bill);
    EntityInvoiceMakanDitempat* sale = saleOf(records.parent(), order, bill);
    if (!m_sales->insertNewOrder(order) || !m_sales->insertInvoice(sale)) {
        giveUp(reference);
        return false;
    }
    write("ack " + reference + ' ' + sale->getInvoice()->getInvoiceNo());
    ++m_acknowledged;
    return true;
}

void Till::giveUp(const QString& reference)
{
    const QString unsure = KorFailure::of(KorFailure::LostWhileSaving, {}, {}, {}).sentence;
    const QString told = m_sales->takeErrors();
    write((told.contains(unsure) ? "unsure " : "refused ") + reference + ' ' + reasonIn(told));
}
