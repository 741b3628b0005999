#pragma once

#include "purchasing/document/PurchasingLinesTab.h"
#include "purchasing/purchaseorder/DialogPurchaseOrderDetail.h"
#include "purchasing/purchaseorder/EntityPurchaseOrderDetail.h"
#include "purchasing/purchaseorder/TableModelPurchaseOrderDetail.h"

/** What is ordered, in the form of a purchase order. */
class TabPurchaseOrderDetail final
    : public PurchasingLinesOf<EntityPurchaseOrderDetail, TableModelPurchaseOrderDetail, DialogPurchaseOrderDetail>
{
    Q_OBJECT

public:
    explicit TabPurchaseOrderDetail(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }
};
