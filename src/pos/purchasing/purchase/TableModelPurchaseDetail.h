#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"

/** What was bought freely. */
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
        // Spelled so since the first version of the form.
        addDiscount(tr("Discout"));
        addAmount();
    }
};
