#pragma once

#include "pos/masterdata/item/ItemLineMapper.h"

/** The lines of all invoices, in the table "invoice_detail". */
class DataMapperInvoiceDetail final : public ItemLineMapper
{
    Q_OBJECT

public:
    DataMapperInvoiceDetail(QObject* parent, KorDataMapper* invoices, const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** Deletes all lines of the invoice. */
    bool removeByInvoiceId(int invoiceId);
};
