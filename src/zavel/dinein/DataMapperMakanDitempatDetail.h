#pragma once

#include "zavel/order/DataMapperOrder.h"

/** The menu lines of orders on tables, in "makan_ditempat_detail". */
class DataMapperMakanDitempatDetail final : public DataMapperOrderDetail
{
    Q_OBJECT

public:
    DataMapperMakanDitempatDetail(QObject* parent, KorDataMapper* orders, const ItemPartners& partners);

    KorEntity* createEntity() override;
};
