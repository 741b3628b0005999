#pragma once

#include "app/persistence/AppLineMapper.h"

class DataMapperAcquisition;
class DataMapperBank;
class DataMapperPayment;

/** The payment lines for purchases, in the table "payment_invoice". */
class DataMapperPaymentInvoices final : public AppLineMapper
{
    Q_OBJECT

public:
    DataMapperPaymentInvoices(DataMapperPayment* payments, DataMapperAcquisition* purchases, DataMapperBank* accounts);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
