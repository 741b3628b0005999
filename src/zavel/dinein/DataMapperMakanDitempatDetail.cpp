#include "zavel/dinein/DataMapperMakanDitempatDetail.h"

#include "zavel/dinein/EntityMakanDitempatDetail.h"

DataMapperMakanDitempatDetail::DataMapperMakanDitempatDetail(QObject* parent, KorDataMapper* orders,
                                                             const ItemPartners& partners)
    : DataMapperOrderDetail(parent, "makan_ditempat_detail", "makan_ditempat_id", "MakanDitempatId", orders, partners)
{
    setName("makan ditempat detail");
}

KorEntity* DataMapperMakanDitempatDetail::createEntity() { return new EntityMakanDitempatDetail(entityParent()); }
