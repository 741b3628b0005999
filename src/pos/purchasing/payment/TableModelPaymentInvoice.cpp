#include "pos/purchasing/payment/TableModelPaymentInvoice.h"

#include "pos/purchasing/payment/EntityPaymentInvoices.h"

TableModelPaymentInvoice::TableModelPaymentInvoice(const QList<KorEntity*>& lines, QObject* parent)
    : AppEntityModel(lines, parent)
{
    using Line = EntityPaymentInvoices;
    addField<Line>(QMetaType::QString, tr("Purchase Invoice No."), [](const Line& line) { return line.documentNo(); });
    addDate<Line>(tr("Due Date"), [](const Line& line) { return line.getAcquisition()->getDueDate(); });
    addMoney<Line>(tr("Total"), [](const Line& line) { return line.getAcquisition()->getGrandTotal(); });
    addMoney<Line>(tr("Amount Due"), [](const Line& line) { return line.getAmountDue(); });
    addMoney<Line>(tr("Amount Paid"), [](const Line& line) { return line.getAmountPaid(); });
}

QVariant TableModelPaymentInvoice::data(const QModelIndex& index, int role) const
{
    // The column shows the purchase's own number; the tool tip shows the supplier's, which is on the paper invoice.
    const auto* line =
        role == Qt::ToolTipRole ? static_cast<const EntityPaymentInvoices*>(entityAt(index.row())) : nullptr;
    if (!line || line->getAcquisition()->getInvoiceNo().isEmpty())
        return AppEntityModel::data(index, role);
    return tr("The supplier's invoice no. : %1").arg(line->getAcquisition()->getInvoiceNo());
}
