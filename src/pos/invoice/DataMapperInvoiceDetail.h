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

    /** Removes all lines of the invoice, whoever wrote them. */
    bool removeByInvoiceId(int invoiceId);
};
