#pragma once

#include "purchasing/acquisition/DialogPurchaseDetail.h"
#include "purchasing/acquisition/EntityAcquisitionDetail.h"
#include "purchasing/acquisition/TableModelPurchaseDetail.h"
#include "purchasing/document/PurchasingLinesTab.h"

/** What was bought freely, in the form of a purchase. */
class TabPurchaseDetail final
    : public PurchasingLinesOf<EntityAcquisitionDetail, TableModelPurchaseDetail, DialogPurchaseDetail>
{
    Q_OBJECT

public:
    explicit TabPurchaseDetail(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }
};
