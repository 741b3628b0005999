#pragma once

#include "sales/invoice/DataMapperInvoiceLink.h"

/** The invoices of sales over the counter, in "invoice_fast_food". */
class DataMapperInvoiceFastFood final : public DataMapperInvoiceLink
{
    Q_OBJECT

public:
    DataMapperInvoiceFastFood(QObject* parent, DataMapperInvoice* invoices);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QString keyName() const override;

protected:
    [[nodiscard]] Messages messages() const override;
    void prepareInvoice(KorEntity* link, Invoice* invoice) override;
};
