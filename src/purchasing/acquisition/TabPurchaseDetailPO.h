#pragma once

#include "purchasing/acquisition/DialogPurchaseDetailPO.h"
#include "purchasing/acquisition/EntityAcquisitionDetail.h"
#include "purchasing/acquisition/TableModelPurchaseDetailPO.h"
#include "purchasing/document/PurchasingLinesTab.h"

class EntityPurchaseOrder;
class EntitySupplier;

/** What came of an order, in the form of a purchase. The lines are those of one order. */
class TabPurchaseDetailPO final
    : public PurchasingLinesOf<EntityAcquisitionDetail, TableModelPurchaseDetailPO, DialogPurchaseDetailPO>
{
    Q_OBJECT

public:
    explicit TabPurchaseDetailPO(QWidget* parent = nullptr);

    /** Whose orders are offered; null for nobody's. The supplier is borrowed. */
    void setSupplier(const EntitySupplier* supplier) { m_supplier = supplier; }
    /** The lines of a stored purchase, which are of this order. */
    void setOrderLines(int orderId, const Lines& lines);
    /** KorNoValue without lines. */
    [[nodiscard]] int orderId() const;
    /** Whether the lines are of an order that another supplier got. */
    [[nodiscard]] bool isOfOtherSupplier() const;

public slots:
    void on_btnSelectPO_clicked();

protected:
    [[nodiscard]] QList<int> columnWidths() const override { return {76, 110, 78, 82, 80, 112, 88}; }

private:
    void takeOrder(const EntityPurchaseOrder& order);

    const EntitySupplier* m_supplier = nullptr;
    int m_orderId = KorNoValue;
    int m_orderSupplierId = KorNoValue;
};
