#pragma once

#include "pos/purchasing/document/PurchasingLinesModel.h"
#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"

/** The ordered and the received quantities of an order. */
class TableModelPurchaseDetailPO final : public PurchasingLinesModel
{
    Q_OBJECT

public:
    TableModelPurchaseDetailPO(const QList<KorEntity*>& lines, QObject* parent) : PurchasingLinesModel(lines, parent)
    {
        using Line = EntityAcquisitionDetail;
        addItem();
        addField<Line>(
            QMetaType::Int, tr("Ordered"), [](const Line& line) { return QString::number(line.getQtyOrdered()); },
            RightAligned);
        addQuantity(tr("Received"));
        addUnit();
        addUnitPrice();
        addDiscount(tr("Discount"));
        addAmount();
    }
};
