#pragma once

#include "app/persistence/AppLineMapper.h"

class DataMapperInvoice;
class DataMapperKomisiAgen;
class EntityKomisiAgenDetail;

/**
 * The commissions paid for invoices, in the table "komisi_agen_detail". The invoice has no foreign key: a sale may be
 * deleted, and its commission lines then stay in the table but are no longer read.
 */
class DataMapperKomisiAgenDetail final : public AppLineMapper
{
    Q_OBJECT

public:
    DataMapperKomisiAgenDetail(DataMapperKomisiAgen* payments, DataMapperInvoice* invoices);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The line that paid the invoice's commission; null when there is none. */
    [[nodiscard]] EntityKomisiAgenDetail* findByInvoice(int invoiceId);
};
