#include "zavel/commission/TableModelAllKomisiAgen.h"

#include "pos/invoice/InvoiceStatusText.h"
#include "zavel/commission/EntityAllKomisiAgen.h"

TableModelAllKomisiAgen::TableModelAllKomisiAgen(const QList<KorEntity*>& sales, QObject* parent)
    : AppEntityModel(sales, parent), m_marks(invoiceStatusMarks())
{
    using Sale = EntityAllKomisiAgen;
    addField<Sale>(QMetaType::QString, tr("Invoice No."),
                   [](const Sale& sale) { return sale.getInvoice()->getInvoiceNo(); });
    addDate<Sale>(tr("Date"), [](const Sale& sale) { return sale.getInvoice()->getInvoiceDate(); });
    addField<Sale>(QMetaType::QString, tr("Agent Name"), [](const Sale& sale) { return sale.getAgent()->getNama(); });
    addMoney<Sale>(tr("Invoice Total"), [](const Sale& sale) { return sale.getInvoice()->getGrandTotal(); });
    // The agent's current percent, even if the commission was paid at another one.
    addPercent<Sale>(tr("% Commision"), [](const Sale& sale) { return sale.getAgent()->getCommisionPerc(); });
    addMoney<Sale>(tr("Total Commision"), [](const Sale& sale) { return sale.getCommision(); });
    // The status uses the same values as an invoice's status.
    addField<Sale>(QMetaType::QString, tr("Status"),
                   [](const Sale& sale) { return invoiceStatusText(sale.getStatus()); });
}

QVariant TableModelAllKomisiAgen::data(const QModelIndex& index, int role) const
{
    const auto* sale = index.isValid() ? static_cast<const EntityAllKomisiAgen*>(glimpse(index.row())) : nullptr;
    if (sale && role == Qt::DecorationRole && index.column() == Status)
        return m_marks.value(sale->getStatus());
    return AppEntityModel::data(index, role);
}
