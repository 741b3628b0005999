#include "zavel/fastfood/TableModelFastFood.h"

#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/InvoiceStatusText.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"

namespace
{
QString menuOf(const EntityInvoiceFastFood& sale)
{
    QStringList names;
    const QList<EntityInvoiceDetail*> lines = sale.getDetails();
    for (const EntityInvoiceDetail* line : lines)
        names.append(line->getItem()->getNama());
    return names.join(", ");
}
} // namespace

TableModelFastFood::TableModelFastFood(const QList<KorEntity*>& sales, QObject* parent)
    : AppEntityModel(sales, parent), m_marks(invoiceStatusMarks())
{
    using Sale = EntityInvoiceFastFood;
    const auto text = [this](const QString& header, auto read) { addField<Sale>(QMetaType::QString, header, read); };
    text(tr("Invoice No."), [](const Sale& sale) { return sale.getInvoice()->getInvoiceNo(); });
    text(tr("Guest"), [](const Sale& sale) { return sale.getPemesan(); });
    text(tr("Waitress"),
         [](const Sale& sale) { return sale.getEmployee() ? sale.getEmployee()->getNama() : QString(); });
    addMoney<Sale>(tr("Total"), [](const Sale& sale) { return sale.getInvoice()->getGrandTotal(); });
    addMoney<Sale>(tr("Amount Paid"), [](const Sale& sale) { return sale.getInvoice()->getAmountPaid(); });
    addDate<Sale>(tr("Date"), [](const Sale& sale) { return sale.getInvoice()->getInvoiceDate(); });
    text(tr("Status"), [](const Sale& sale) { return invoiceStatusText(sale.getInvoice()->getStatus()); });
    text(tr("Menu"), menuOf);
}

QVariant TableModelFastFood::data(const QModelIndex& index, int role) const
{
    const auto* sale = index.isValid() ? static_cast<const EntityInvoiceFastFood*>(glimpse(index.row())) : nullptr;
    if (sale && role == Qt::DecorationRole && index.column() == Status)
        return m_marks.value(sale->getInvoice()->getStatus());
    // A long list of items does not fit into the cell.
    if (role == Qt::ToolTipRole && index.column() == Menu)
        return data(index);
    return AppEntityModel::data(index, role);
}
