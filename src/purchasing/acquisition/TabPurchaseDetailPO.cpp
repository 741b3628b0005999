#include "purchasing/acquisition/TabPurchaseDetailPO.h"

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "masterdata/supplier/EntitySupplier.h"
#include "purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "purchasing/purchaseorder/DialogSelectPO.h"
#include "purchasing/purchaseorder/EntityPurchaseOrder.h"

#include <QHash>
#include <QMessageBox>
#include <QPushButton>

TabPurchaseDetailPO::TabPurchaseDetailPO(QWidget* parent) : PurchasingLinesOf(parent)
{
    takeAddAway();
    QPushButton* select = addButton("btnSelectPO", tr("Select PO"), ":/icons/browse.png");
    select->setShortcut(Qt::Key_F12);
    select->setToolTip(tr("Take the lines of a purchase order over (F12)"));
    connect(select, &QPushButton::clicked, this, &TabPurchaseDetailPO::on_btnSelectPO_clicked);
    refresh();
}

void TabPurchaseDetailPO::setOrderLines(int orderId, const Lines& lines)
{
    m_orderId = orderId;
    m_orderSupplierId = m_supplier ? m_supplier->getId() : KorNoValue;
    setLines(lines);
}

int TabPurchaseDetailPO::orderId() const { return lines().isEmpty() ? KorNoValue : m_orderId; }

bool TabPurchaseDetailPO::isOfOtherSupplier() const
{
    return !lines().isEmpty() && m_supplier && m_supplier->getId() != m_orderSupplierId;
}

void TabPurchaseDetailPO::on_btnSelectPO_clicked()
{
    if (!m_supplier) {
        QMessageBox::information(this, tr("Info"), tr("Please select a supplier"));
        return;
    }
    DialogSelectPO dialog(m_supplier, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const EntityPoolScope scope(pool());
    auto* orders = service<BusinessPurchaseOrder>("Purchase Order");
    orders->clearErrors();
    const auto* order = static_cast<EntityPurchaseOrder*>(orders->find(dialog.selectedId()));
    if (order)
        takeOrder(*order);
    else if (orders->hasError())
        QMessageBox::critical(this, KorDialog::tr("Error"), orders->takeErrors());
    else
        QMessageBox::information(this, KorDialog::tr("Error"),
                                 tr("Can not find PO with id: %1").arg(dialog.selectedId()));
    focusLines();
}

void TabPurchaseDetailPO::takeOrder(const EntityPurchaseOrder& order)
{
    m_orderId = order.getId();
    m_orderSupplierId = m_supplier->getId();
    // What was keyed in for a line of this order already is kept.
    QHash<int, KorEntity*> present;
    for (KorEntity* line : lines())
        present.insert(static_cast<EntityAcquisitionDetail*>(line)->getPurchaseOrderDetailId(), line);
    Lines taken;
    for (const EntityPurchaseOrderDetail* ordered : order.getDetails()) {
        if (KorEntity* line = present.value(ordered->getId())) {
            taken.append(line);
            continue;
        }
        auto* line = static_cast<EntityAcquisitionDetail*>(createLine());
        line->setParent(this);
        line->setItem(ordered->getItem());
        line->takeFigures(*ordered);
        line->setQty(0);
        line->setQtyOrdered(ordered->getJumlah());
        line->setPurchaseOrderDetailId(ordered->getId());
        taken.append(line);
    }
    replaceLines(taken);
}
