#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"

/** The lines of a purchase order. */
class TableModelPurchaseOrderDetail final : public PurchasingLinesModel
{
    Q_OBJECT

public:
    TableModelPurchaseOrderDetail(const QList<KorEntity*>& lines, QObject* parent) : PurchasingLinesModel(lines, parent)
    {
        addItem();
        addQuantity(tr("Qty"));
        addUnit();
        addUnitPrice();
        addDiscount(tr("Discount"));
        addAmount();
    }
};
