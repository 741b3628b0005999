#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"

/** The items bought without an order. */
class TableModelPurchaseDetail final : public PurchasingLinesModel
{
    Q_OBJECT

public:
    TableModelPurchaseDetail(const QList<KorEntity*>& lines, QObject* parent) : PurchasingLinesModel(lines, parent)
    {
        addItem();
        addQuantity(tr("Qty"));
        addUnit();
        addUnitPrice();
        // Misspelled since the first version of the form; the text is kept.
        addDiscount(tr("Discout"));
        addAmount();
    }
};
