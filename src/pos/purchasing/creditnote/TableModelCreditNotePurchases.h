#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"

/** The items returned without a purchase. */
class TableModelCreditNotePurchases final : public PurchasingLinesModel
{
    Q_OBJECT

public:
    TableModelCreditNotePurchases(const QList<KorEntity*>& lines, QObject* parent) : PurchasingLinesModel(lines, parent)
    {
        addItem();
        addQuantity(tr("Qty"));
        addUnit();
        addUnitPrice();
        addDiscount(tr("Discount"));
        addAmount();
    }
};
