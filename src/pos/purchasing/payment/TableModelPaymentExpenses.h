#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"

/** What a payment pays without a purchase. */
class TableModelPaymentExpenses final : public PurchasingLinesModel
{
    Q_OBJECT

public:
    TableModelPaymentExpenses(const QList<KorEntity*>& lines, QObject* parent) : PurchasingLinesModel(lines, parent)
    {
        addItem();
        addUnit();
        addUnitPrice();
        addDiscount(tr("Discount"));
        addAmount();
    }
};
