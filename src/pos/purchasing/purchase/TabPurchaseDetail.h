#pragma once

#include "pos/purchasing/document/PurchasingLinesTab.h"
#include "pos/purchasing/purchase/DialogPurchaseDetail.h"
#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"
#include "pos/purchasing/purchase/TableModelPurchaseDetail.h"

/** The items bought without an order, in the form of a purchase. */
class TabPurchaseDetail final
    : public PurchasingLinesOf<EntityAcquisitionDetail, TableModelPurchaseDetail, DialogPurchaseDetail>
{
    Q_OBJECT

public:
    explicit TabPurchaseDetail(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }
};
