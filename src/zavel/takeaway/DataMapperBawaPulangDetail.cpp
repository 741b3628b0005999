#include "zavel/takeaway/DataMapperBawaPulangDetail.h"

#include "zavel/takeaway/EntityBawaPulangDetail.h"

DataMapperBawaPulangDetail::DataMapperBawaPulangDetail(QObject* parent, KorDataMapper* orders,
                                                       const ItemPartners& partners)
    : DataMapperOrderDetail(parent, "bawa_pulang_detail", "bawa_pulang_id", "BawaPulangId", orders, partners)
{
    setName("bawa pulang detail");
}

KorEntity* DataMapperBawaPulangDetail::createEntity() { return new EntityBawaPulangDetail(entityParent()); }
