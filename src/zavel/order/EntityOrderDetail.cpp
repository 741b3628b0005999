#include "zavel/order/EntityOrderDetail.h"

EntityOrderDetail* EntityOrderDetail::snapshot() const
{
    EntityOrderDetail* copy = createSibling();
    copy->setId(getId());
    copy->setOrderId(getOrderId());
    copy->setItem(getItem());
    copy->setQty(getQty());
    copy->setDescription(getDescription());
    copy->setCreatedBy(getCreatedBy());
    copy->setCreatedTime(getCreatedTime());
    copy->setUpdatedBy(getUpdatedBy());
    copy->setUpdatedTime(getUpdatedTime());
    return copy;
}
