#pragma once

#include "pos/invoice/DataMapperInvoiceLink.h"

class EntityInvoiceFastFood;
struct FastFoodFilter;

/** The invoices of sales over the counter, in "invoice_fast_food". */
class DataMapperInvoiceFastFood final : public DataMapperInvoiceLink
{
    Q_OBJECT

public:
    DataMapperInvoiceFastFood(QObject* parent, DataMapperInvoice* invoices);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QString keyName() const override;

    /** The sales in this time, the latest first. */
    [[nodiscard]] QList<EntityInvoiceFastFood*> getFastFoodList(const FastFoodFilter& filter);

protected:
    [[nodiscard]] Messages messages() const override;
    void prepareInvoice(KorEntity* link, Invoice* invoice) override;
};
