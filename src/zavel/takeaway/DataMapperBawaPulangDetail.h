#pragma once

#include "zavel/order/DataMapperOrder.h"

/** The menu lines of orders to take away, in "bawa_pulang_detail". */
class DataMapperBawaPulangDetail final : public DataMapperOrderDetail
{
    Q_OBJECT

public:
    DataMapperBawaPulangDetail(QObject* parent, KorDataMapper* orders, const ItemPartners& partners);

    KorEntity* createEntity() override;
};
