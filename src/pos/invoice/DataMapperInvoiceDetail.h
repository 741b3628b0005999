#pragma once

#include "pos/masterdata/item/ItemLineMapper.h"

class EntityInvoiceDetail;

/** The lines of all invoices, in the table "invoice_detail". */
class DataMapperInvoiceDetail final : public ItemLineMapper
{
    Q_OBJECT

public:
    DataMapperInvoiceDetail(QObject* parent, KorDataMapper* invoices, const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** In the order in which the lines were entered. */
    [[nodiscard]] QList<EntityInvoiceDetail*> findByInvoice(int invoiceId);
    /** The lines of several invoices in one statement. */
    [[nodiscard]] QList<EntityInvoiceDetail*> findByInvoices(const QList<int>& invoiceIds);
    /** Removes all lines of the invoice, whoever wrote them. */
    bool removeByInvoiceId(int invoiceId);
};
