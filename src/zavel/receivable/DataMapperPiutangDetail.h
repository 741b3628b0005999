#pragma once

#include "app/persistence/AppLineMapper.h"

class DataMapperAgent;
class DataMapperEmployee;
class DataMapperInvoice;
class DataMapperMember;
class DataMapperPiutang;
class EntityPiutangDetail;

/**
 * The lines of members' payments, one per invoice, in the table "piutang_detail". The invoice has no foreign key: a
 * sale may be deleted, and its payment lines then stay in the table but are no longer read.
 */
class DataMapperPiutangDetail final : public AppLineMapper
{
    Q_OBJECT

public:
    DataMapperPiutangDetail(DataMapperPiutang* payments, DataMapperInvoice* invoices, DataMapperEmployee* employees,
                            DataMapperAgent* agents, DataMapperMember* members);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The lines of all payments for these invoices. */
    [[nodiscard]] QList<EntityPiutangDetail*> findByInvoices(const QList<int>& invoiceIds);
};
