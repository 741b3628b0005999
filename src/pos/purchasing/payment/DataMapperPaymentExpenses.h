#pragma once

#include "pos/masterdata/item/ItemLineMapper.h"

class DataMapperPayment;

/** The payment lines without a purchase, in the table "payment_expense". */
class DataMapperPaymentExpenses final : public ItemLineMapper
{
    Q_OBJECT

public:
    DataMapperPaymentExpenses(DataMapperPayment* payments, const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
