#include "zavel/list/TableModelDaftarPenjualan.h"

#include "pos/invoice/InvoiceStatusText.h"
#include "zavel/list/EntityPenjualanInfo.h"

TableModelDaftarPenjualan::TableModelDaftarPenjualan(const QList<KorEntity*>& sales, QObject* parent)
    : AppEntityModel(sales, parent), m_marks(invoiceStatusMarks())
{
    using Sale = EntityPenjualanInfo;
    const auto text = [this](const QString& header, auto read) { addField<Sale>(QMetaType::QString, header, read); };
    text(tr("No"), [](const Sale& sale) { return sale.getInvoice()->getInvoiceNo(); });
    addDate<Sale>(tr("Date"), [](const Sale& sale) { return sale.getInvoice()->getInvoiceDate(); });
    text(tr("Type"), [](const Sale& sale) { return sale.typeName(); });
    text(tr("User"), [](const Sale& sale) { return sale.getUser() ? sale.getUser()->getUserName() : QString(); });
    text(tr("Member Code"),
         [](const Sale& sale) { return sale.getMember() ? sale.getMember()->getKode() : QString(); });
    text(tr("Guest Name"), [](const Sale& sale) { return sale.getPemesan(); });
    text(tr("Waitress"), [](const Sale& sale) { return sale.waitress() ? sale.waitress()->getNama() : QString(); });
    addMoney<Sale>(tr("Invoice Total"), [](const Sale& sale) { return sale.getGrandTotal(); });
    addMoney<Sale>(tr("Cash"), [](const Sale& sale) { return sale.getAmountPaid(); });
    addMoney<Sale>(tr("Credit"), [](const Sale& sale) { return sale.getOtherPayment(); });
    addMoney<Sale>(tr("Net Due"), [](const Sale& sale) { return sale.getNetDue(); });
    text(tr("Status"), [](const Sale& sale) { return invoiceStatusText(sale.getInvoice()->getStatus()); });
}

QVariant TableModelDaftarPenjualan::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DecorationRole || index.column() != Status)
        return AppEntityModel::data(index, role);
    const auto* sale = static_cast<const EntityPenjualanInfo*>(glimpse(index.row()));
    return sale ? QVariant(m_marks.value(sale->getInvoice()->getStatus())) : QVariant();
}
