#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperAcquisition;
class DataMapperBank;
class DataMapperPayment;

/** What payments paid of purchases, in the table "payment_invoice". */
class DataMapperPaymentInvoices final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperPaymentInvoices(DataMapperPayment* payments, DataMapperAcquisition* purchases, DataMapperBank* accounts);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** In the order of entry. */
    [[nodiscard]] QList<KorEntity*> findByPayment(int paymentId);
};
