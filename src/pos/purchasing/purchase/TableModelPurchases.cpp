#include "pos/purchasing/purchase/TableModelPurchases.h"

#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchase/PaidStatus.h"

#include <QBrush>

using Purchase = EntityAcquisition;

TableModelPurchases::TableModelPurchases(const QList<KorEntity*>& purchases, QObject* parent)
    : AppEntityModel(purchases, parent)
{
    const auto date = [this](const QString& header, QDate (Purchase::*day)() const) {
        addDate<Purchase>(header, [day](const Purchase& purchase) { return (purchase.*day)(); });
    };
    date(tr("Date"), &Purchase::getPurchaseDate);
    addText(tr("Invoice No."), &Purchase::getInvoiceNo);
    addField<Purchase>(QMetaType::QString, tr("Supplier"),
                       [](const Purchase& purchase) { return purchase.getSupplier()->getNama(); });
    date(tr("Due Date"), &Purchase::getDueDate);
    addField<Purchase>(QMetaType::QString, tr("Status"),
                       [](const Purchase& purchase) { return paidStatusText(purchase.getStatus()); });
    addMoney<Purchase>(tr("Invoice Total"), [](const Purchase& purchase) { return purchase.getGrandTotal(); });
    addMoney<Purchase>(tr("Net Due"), [](const Purchase& purchase) { return purchase.getNetDue(); });
}

QVariant TableModelPurchases::data(const QModelIndex& index, int role) const
{
    const auto* purchase = static_cast<const Purchase*>(glimpse(index.row()));
    if (!purchase)
        return AppEntityModel::data(index, role);
    if (role == Qt::BackgroundRole) {
        const QColor colour = paidStatusColour(purchase->getStatus());
        return colour.isValid() ? QVariant(QBrush(colour)) : QVariant();
    }
    if (role == Qt::DecorationRole && index.column() == Status)
        return paidStatusMark(purchase->getStatus());
    // The column shows the supplier's number; the tool tip shows the purchase's own, which the search uses.
    if (role == Qt::ToolTipRole)
        return tr("Purchase No. : %1").arg(purchase->getNo());
    return AppEntityModel::data(index, role);
}
