#pragma once

#include "pos/purchasing/document/PurchasingLinesTab.h"
#include "pos/purchasing/purchaseorder/DialogPurchaseOrderDetail.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrderDetail.h"
#include "pos/purchasing/purchaseorder/TableModelPurchaseOrderDetail.h"

/** The ordered items, in the form of a purchase order. */
class TabPurchaseOrderDetail final
    : public PurchasingLinesOf<EntityPurchaseOrderDetail, TableModelPurchaseOrderDetail, DialogPurchaseOrderDetail>
{
    Q_OBJECT

public:
    explicit TabPurchaseOrderDetail(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }
};
