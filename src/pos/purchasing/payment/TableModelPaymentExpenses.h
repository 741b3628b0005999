#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"

/** The expenses of a payment without a purchase. */
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
