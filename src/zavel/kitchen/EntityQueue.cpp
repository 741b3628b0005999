#include "zavel/kitchen/EntityQueue.h"

#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/takeaway/EntityBawaPulang.h"

std::unique_ptr<EntityOrder> EntityQueue::addition() const
{
    const EntityOrder& order = *m_Order;
    std::unique_ptr<EntityOrder> copy;
    if (m_Type == TakeAwayOrder) {
        copy = std::make_unique<EntityBawaPulang>();
    } else {
        auto dine = std::make_unique<EntityMakanDitempat>();
        dine->setMeja(static_cast<const EntityMakanDitempat&>(order).getMeja());
        dine->setPindahMeja(static_cast<const EntityMakanDitempat&>(order).getPindahMeja());
        copy = std::move(dine);
    }
    copy->setId(order.getId());
    copy->setMember(order.getMember());
    copy->setPemesan(order.getPemesan());
    copy->setStatus(order.getStatus());
    copy->setTgl(order.getTgl());
    copy->setCreatedBy(order.getCreatedBy());
    copy->setCreatedTime(order.getCreatedTime());
    copy->setUpdatedTime(order.getUpdatedTime());
    copy->setDetails(order.getDetails());
    copy->collectMarkedLines();
    copy->setDetails(copy->getChangedDetails());
    return copy;
}
